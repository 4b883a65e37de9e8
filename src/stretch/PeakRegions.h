// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <vector>

#include "stretch/Float4.h"
#include "stretch/Sizes.h"

namespace sprout::stretch {

/// A peak of a spectrum and the bins from `first` up to `end` that move with it.
struct PeakRegion {
    Index first = 0;
    Index peak = 0;
    Index end = 0;

    bool operator==(const PeakRegion&) const = default;
};

/// Divides the power spectra of four blocks under a Hann window, transformed at 4/3 of their length.
///
/// A peak is a bin above two neighbours on each side that is not a side lobe of a stronger one: side lobes belong to
/// their main lobe and would drift away from it if turned on their own. A border is the smallest bin between two peaks.
/// The regions cover the spectrum without a gap; a spectrum without a peak has none.
class PeakRegions {
public:
    /// bins: of each spectrum.
    explicit PeakRegions(Index bins);

    void Find(std::span<const Float4> power);

    /// The regions of one spectrum, ascending; valid until the next Find.
    [[nodiscard]] std::span<const PeakRegion> InLane(std::size_t lane) const { return regions[lane]; }

private:
    void FindHighBins(std::span<const Float4> power);
    void AddHighBins(std::size_t lane, std::size_t first, unsigned bits);
    void KeepPeaks(std::span<const Float4> power, std::size_t lane);
    void FindBorders(std::span<const Float4> power);

    std::array<std::vector<std::int32_t>, kLanes> highBins; // above their neighbours, maybe side lobes
    std::array<std::size_t, kLanes> highBinCounts{};
    std::array<std::vector<PeakRegion>, kLanes> regions;
    std::vector<Int4> atPeak; // -1 in the lanes that have a peak at a bin; only during Find
    std::vector<Int4> lowest; // for each bin, the lowest one from the peak before it up to it
};

} // namespace sprout::stretch
