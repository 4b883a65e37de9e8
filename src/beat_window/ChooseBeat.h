// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace sprout {

/// Lets the user choose an instrument in the beat window. name: the one to start from, the chosen one on return.
/// Returns false, with the name as it was, where none was chosen.
[[nodiscard]] bool ChooseBeat(std::string& name);

} // namespace sprout
