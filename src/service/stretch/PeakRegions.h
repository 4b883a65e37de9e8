// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/stretch/Sizes.h"

#include <span>
#include <vector>

namespace sprout::stretch {

/// A peak of a spectrum and the bins from `first` up to `end` that move with it.
struct PeakRegion {
    Index first = 0;
    Index peak = 0;
    Index end = 0;

    bool operator==(const PeakRegion&) const = default;
};

/// Divides a power spectrum: a peak is a bin above two neighbours on each side, a border the smallest bin between two
/// peaks. The regions cover the spectrum without a gap; a spectrum without a peak gives none.
///
/// regions: receives the result; what it held is lost, its memory is used again.
void FindPeakRegions(std::span<const float> power, std::vector<PeakRegion>& regions);

} // namespace sprout::stretch
