// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/Meter.h"

#include <algorithm>

#include "base/Numbers.h"

namespace sprout {

namespace {

constexpr std::int64_t kPiecesASecond = 50;
constexpr std::int32_t kGreatestByte = 127;
constexpr std::int32_t kGreatestWord = 32767;

} // namespace

std::int32_t PeakMaximum(std::int32_t bits)
{
    return bits == 8 ? kGreatestByte : kGreatestWord;
}

std::int32_t Meter::BarTop(std::int32_t peak) const
{
    const double scale = static_cast<double>(height) / peakMaximum;
    return RoundHalfEven(height - std::clamp(peak, 0, peakMaximum) * scale);
}

std::int32_t LoudestOfSecond::Note(std::int64_t pieces, std::int32_t peak)
{
    if (!noted.empty() && pieces < noted.back().pieces) // another capture
        noted.clear();
    while (!noted.empty() && noted.front().pieces <= pieces - kPiecesASecond)
        noted.pop_front();
    while (!noted.empty() && noted.back().peak <= peak)
        noted.pop_back();
    noted.push_back({pieces, peak});
    return noted.front().peak;
}

std::int32_t ProgressColumns(std::int32_t width, double seconds, double limitSeconds)
{
    return RoundHalfEven(width * std::clamp(seconds / limitSeconds, 0.0, 1.0));
}

} // namespace sprout
