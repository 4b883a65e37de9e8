// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/stretch/PeakRegions.h"

#include <algorithm>

namespace sprout::stretch {
namespace {

bool IsPeak(const float* power)
{
    return power[0] > power[-1] && power[0] >= power[1] && power[0] > power[-2] && power[0] >= power[2];
}

} // namespace

void FindPeakRegions(std::span<const float> power, std::vector<PeakRegion>& regions)
{
    regions.clear();
    for (Index bin = 2; bin + 2 < std::ssize(power); ++bin) {
        if (!IsPeak(power.data() + bin)) {
            continue;
        }
        Index border = 0;
        if (!regions.empty()) {
            const auto lowest = std::min_element(power.begin() + regions.back().peak, power.begin() + bin);
            border = lowest - power.begin();
            regions.back().end = border;
        }
        regions.push_back({.first = border, .peak = bin, .end = std::ssize(power)});
    }
}

} // namespace sprout::stretch
