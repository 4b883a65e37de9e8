// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace sprout {

/// A duration as "1:02:03.40": hours and minutes only if there are any, hundredths only if they are not zero; "07" for
/// 7 seconds. "Error" if it is too large or not a number.
[[nodiscard]] std::string TimeText(double seconds);

} // namespace sprout
