// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace sprout {

/// Shows a message that a button's function is not available yet. buttonName: the control's name; an unknown one shows
/// nothing.
void ShowLaterCommand(std::string_view buttonName);

} // namespace sprout
