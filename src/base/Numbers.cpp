// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "base/Errors.h"

namespace sprout {

std::int32_t RoundHalfEven(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max()))
        throw RunTimeError(Words::Text("A number is too large."));
    return static_cast<std::int32_t>(rounded);
}

double NumberPrefix(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return 0;
    text.remove_prefix(first);
    const bool signedPlus = text.front() == '+';
    if (signedPlus)
        text.remove_prefix(1);
    // from_chars also accepts "inf" and "nan", which are words here, and a minus sign, even after a plus.
    const auto digits = text.find_first_not_of('-');
    if (digits == std::string_view::npos || digits > 1 || (signedPlus && digits == 1))
        return 0;
    if ((text[digits] < '0' || text[digits] > '9') && text[digits] != '.')
        return 0;
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const std::string_view number(text.data(), static_cast<std::size_t>(result.ptr - text.data()));
        const bool tiny = number.find("e-") != std::string_view::npos || number.find("E-") != std::string_view::npos;
        const double size = tiny ? 0.0 : std::numeric_limits<double>::infinity();
        return digits == 1 ? -size : size;
    }
    return result.ec == std::errc() ? value : 0;
}

} // namespace sprout
