// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace sprout {

/// A duration as "1:02:03.40": hours and minutes only where there are some, hundredths only where they are not zero;
/// "07" for 7 seconds. "Error" for what is no number or too large.
[[nodiscard]] std::string TimeText(double seconds);

} // namespace sprout
