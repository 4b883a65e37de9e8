// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace sprout {

/// Nearest whole number, ties to even. Throws `RunTimeError` if it is not a 32-bit number.
[[nodiscard]] std::int32_t RoundHalfEven(double value);

/// Value of the longest numeric prefix of `text`: blanks, sign, digits, point, exponent. 0 if there is none.
[[nodiscard]] double NumberPrefix(std::string_view text);

} // namespace sprout
