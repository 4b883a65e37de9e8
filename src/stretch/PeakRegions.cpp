// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/PeakRegions.h"

#include <algorithm>

namespace sprout::stretch {
namespace {

// The side lobes of a Hann window fall with the sixth power of the distance; in bins of a transform a third longer than
// the window this lies 6 dB above them.
constexpr float kSkirt = 2.25F;

bool IsPeak(const float* power)
{
    return power[0] > power[-1] && power[0] >= power[1] && power[0] > power[-2] && power[0] >= power[2];
}

bool IsHidden(float weak, float strong, Index distance)
{
    const auto cube = static_cast<float>(distance * distance * distance);
    return weak * cube * cube < kSkirt * strong;
}

/// Appends a peak at `bin`, unless the skirt of the previous one hides it; drops previous peaks that it hides.
void AddPeak(std::span<const float> power, Index bin, std::vector<PeakRegion>& regions)
{
    const auto powerAt = [power](Index at) { return power[static_cast<std::size_t>(at)]; };
    while (!regions.empty() && IsHidden(powerAt(regions.back().peak), powerAt(bin), bin - regions.back().peak))
        regions.pop_back();
    if (regions.empty() || !IsHidden(powerAt(bin), powerAt(regions.back().peak), bin - regions.back().peak))
        regions.push_back({.first = 0, .peak = bin, .end = std::ssize(power)});
}

} // namespace

void FindPeakRegions(std::span<const float> power, std::vector<PeakRegion>& regions)
{
    regions.clear();
    for (Index bin = 2; bin + 2 < std::ssize(power); ++bin)
        if (IsPeak(power.data() + bin))
            AddPeak(power, bin, regions);
    for (std::size_t i = 1; i < regions.size(); ++i) {
        PeakRegion& left = regions[i - 1];
        const auto lowest = std::min_element(power.begin() + left.peak, power.begin() + regions[i].peak);
        left.end = lowest - power.begin();
        regions[i].first = left.end;
    }
}

} // namespace sprout::stretch
