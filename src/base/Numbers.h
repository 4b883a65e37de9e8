// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace sprout {

/// Nearest whole number, ties to even. Throws `RunTimeError` for what is no 32-bit number.
[[nodiscard]] std::int32_t RoundHalfEven(double value);

/// Value of the longest numeric prefix of `text`: blanks, sign, digits, point, exponent. 0 where there is none.
[[nodiscard]] double NumberPrefix(std::string_view text);

} // namespace sprout
