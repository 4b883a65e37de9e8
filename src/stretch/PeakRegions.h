// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// A peak of a spectrum and the bins from `first` up to `end` that move with it.
struct PeakRegion {
    Index first = 0;
    Index peak = 0;
    Index end = 0;

    bool operator==(const PeakRegion&) const = default;
};

/// Divides the power spectrum of a block under a Hann window, transformed at 4/3 of its length.
///
/// A peak is a bin above two neighbours on each side that is not a side lobe of a stronger one: side lobes belong to
/// their main lobe and would drift away from it if turned on their own. A border is the smallest bin between two peaks.
/// The regions cover the spectrum without a gap; a spectrum without a peak has none.
///
/// regions: receives the result; its old content is lost, its memory is reused.
void FindPeakRegions(std::span<const float> power, std::vector<PeakRegion>& regions);

} // namespace sprout::stretch
