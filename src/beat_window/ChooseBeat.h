// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace sprout {

/// Lets the user choose an instrument in the beat window. name: the initial one; on return the chosen one. Returns
/// false and keeps the name if none was chosen.
[[nodiscard]] bool ChooseBeat(std::string& name);

} // namespace sprout
