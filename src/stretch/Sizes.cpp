// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Sizes.h"

#include <cmath>
#include <initializer_list>

namespace sprout::stretch {

Sizes SizesFor(std::int32_t rate)
{
    Sizes sizes;
    const int part = rate < 16000 ? 4 : rate < 32000 ? 2 : 1;
    for (Index* length : {&sizes.longWindow, &sizes.shortWindow, &sizes.onsetHop, &sizes.onsetGrain,
                          &sizes.shortestLead, &sizes.shortestSlice, &sizes.sliceLead, &sizes.joinFadeIn,
                          &sizes.joinFadeOut, &sizes.attack, &sizes.longestQuiet, &sizes.endFade, &sizes.startFade})
        *length /= part;
    sizes.nominalRate /= part;
    return sizes;
}

Index ResultLength(Index count, double duration)
{
    return static_cast<Index>(std::floor(static_cast<double>(count) * duration + 0.5));
}

} // namespace sprout::stretch
