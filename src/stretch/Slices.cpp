// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Slices.h"

#include <algorithm>
#include <cmath>

namespace sprout::stretch {
namespace {

constexpr double kLargestVerbatimShare = 0.3;

/// The first slice also keeps the part before an onset that is too early for its own slice.
Index VerbatimLength(const Slice& slice, Index quiet, const Sizes& sizes)
{
    const Index wanted = sizes.attack + std::min(quiet, sizes.longestQuiet);
    const Index shorter = std::min(slice.inCount, slice.outCount);
    return std::min(wanted, static_cast<Index>(static_cast<double>(shorter) * kLargestVerbatimShare));
}

} // namespace

std::vector<Slice> CutSlices(std::span<const Index> onsets, Index inCount, Index outCount, const Sizes& sizes)
{
    const double stretch = static_cast<double>(outCount) / static_cast<double>(inCount);
    std::vector<Slice> slices{Slice{}};
    for (const Index onset : onsets) {
        const Index inFirst = onset - sizes.sliceLead;
        const Index outFirst = std::llround(static_cast<double>(onset) * stretch) - sizes.sliceLead;
        const bool roomBefore = onset > sizes.shortestLead &&
                                (slices.size() == 1 || inFirst - slices.back().inFirst >= sizes.shortestSlice);
        if (roomBefore && inCount - inFirst >= sizes.shortestSlice)
            slices.push_back({.inFirst = inFirst, .outFirst = outFirst});
    }
    for (std::size_t i = 0; i < slices.size(); ++i) {
        const bool last = i + 1 == slices.size();
        slices[i].inCount = (last ? inCount : slices[i + 1].inFirst) - slices[i].inFirst;
        slices[i].outCount = (last ? outCount : slices[i + 1].outFirst) - slices[i].outFirst;
        const Index quiet = i == 0 && !onsets.empty() ? onsets.front() : 0;
        slices[i].verbatim = VerbatimLength(slices[i], quiet, sizes);
    }
    return slices;
}

} // namespace sprout::stretch
