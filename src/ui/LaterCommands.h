// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace sprout {

/// Tells, in a message, that what a button is for cannot be done yet. buttonName: the control's name; one that is not
/// known shows nothing.
void ShowLaterCommand(std::string_view buttonName);

} // namespace sprout
