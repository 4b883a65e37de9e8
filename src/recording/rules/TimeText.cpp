// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/TimeText.h"

#include <cmath>
#include <string_view>

#include "base/Errors.h"
#include "base/Numbers.h"

namespace sprout {

namespace {

constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr std::int32_t kHundred = 100;

/// At least two digits.
std::string TwoDigits(std::int32_t number)
{
    const std::string digits = std::to_string(number);
    return digits.size() < 2 ? "0" + digits : digits;
}

/// The whole number at or below a value. Throws `RunTimeError` if it is not a 32-bit number.
std::int32_t Floor(double value)
{
    return RoundHalfEven(std::floor(value));
}

std::string SecondsText(double seconds)
{
    const std::int32_t hundredths = RoundHalfEven(seconds * kHundred);
    const std::string whole = TwoDigits(hundredths / kHundred);
    return hundredths % kHundred == 0 ? whole.substr(0, 2) : whole + "." + TwoDigits(hundredths % kHundred);
}

} // namespace

std::string TimeText(double seconds)
try {
    const std::int32_t hours = Floor(seconds / kHour);
    const double rest = seconds - hours * kHour;
    const std::int32_t minutes = Floor(rest / kMinute);
    std::string text;
    if (hours > 0)
        text = std::to_string(hours) + ":";
    if (hours > 0 || minutes > 0)
        text += TwoDigits(minutes) + ":";
    return text + SecondsText(rest - minutes * kMinute);
} catch (const RunTimeError&) {
    return "Error";
}

} // namespace sprout
