// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/PeakRegions.h"

#include <algorithm>

namespace sprout::stretch {
namespace {

// The side lobes of a Hann window fall with the sixth power of the distance; in bins of a transform a third longer than
// the window this lies 6 dB above them.
constexpr float kSkirt = 2.25F;

bool IsHidden(float weak, float strong, Index distance)
{
    const auto cube = static_cast<float>(distance * distance * distance);
    return weak * cube * cube < kSkirt * strong;
}

/// The lowest of the powers added so far since the last peak, and its place, in each lane.
struct Lowest {
    Lowest(Float4 first, std::int32_t firstPlace) : power(first), place(Int4{} + firstPlace), here(place) {}

    void Add(Float4 added, Int4 peaks)
    {
        const Int4 taken = peaks | (added < power);
        power = Choose(taken, added, power);
        place = Choose(taken, here, place);
        here += 1;
    }

    Float4 power;
    Int4 place;
    Int4 here;
};

} // namespace

PeakRegions::PeakRegions(Index bins) : atPeak(static_cast<std::size_t>(bins)), lowest(static_cast<std::size_t>(bins))
{
    for (std::vector<std::int32_t>& lane : highBins)
        lane.resize(static_cast<std::size_t>(bins));
}

/// Lists the bins above their neighbours. Every bin is written and only counted if it is one, because a branch would
/// often be mispredicted.
void PeakRegions::FindHighBins(std::span<const Float4> power)
{
    highBinCounts = {};
    for (std::size_t bin = 2; bin + 2 < power.size(); ++bin) {
        const Float4* const here = power.data() + bin;
        const unsigned high =
            LaneBits((here[0] > here[-1]) & (here[0] >= here[1]) & (here[0] > here[-2]) & (here[0] >= here[2]));
        for (std::size_t lane = 0; lane < kLanes; ++lane) {
            highBins[lane][highBinCounts[lane]] = static_cast<std::int32_t>(bin);
            highBinCounts[lane] += high >> lane & 1U;
        }
    }
}

/// Lists the peaks of one lane: bins above their neighbours that no other one hides under its skirt.
void PeakRegions::KeepPeaks(std::span<const Float4> power, std::size_t lane)
{
    const auto powerAt = [power, lane](Index bin) { return power[static_cast<std::size_t>(bin)][lane]; };
    std::vector<PeakRegion>& peaks = regions[lane];
    peaks.clear();
    for (const std::int32_t bin : std::span(highBins[lane]).first(highBinCounts[lane])) {
        while (!peaks.empty() && IsHidden(powerAt(peaks.back().peak), powerAt(bin), bin - peaks.back().peak))
            peaks.pop_back();
        if (peaks.empty() || !IsHidden(powerAt(bin), powerAt(peaks.back().peak), bin - peaks.back().peak))
            peaks.push_back({.first = 0, .peak = bin, .end = std::ssize(power)});
    }
}

/// Finds the lowest bin between two peaks: one pass over the bins of all lanes, which start anew at their peaks.
///
/// The pass goes over both halves of the bins side by side, because each of its steps waits for the last one.
void PeakRegions::FindBorders(std::span<const Float4> power)
{
    for (std::size_t lane = 0; lane < kLanes; ++lane)
        for (const PeakRegion& region : regions[lane])
            atPeak[static_cast<std::size_t>(region.peak)][lane] = -1;
    const std::size_t middle = power.size() / 2;
    Lowest low(power[0], 0);
    Lowest high(power[middle], static_cast<std::int32_t>(middle));
    for (std::size_t bin = 0; bin < middle; ++bin) {
        lowest[bin] = low.place;
        lowest[middle + bin] = high.place;
        low.Add(power[bin], atPeak[bin]);
        high.Add(power[middle + bin], atPeak[middle + bin]);
    }
    for (std::size_t bin = 2 * middle; bin < power.size(); ++bin) {
        lowest[bin] = high.place;
        high.Add(power[bin], atPeak[bin]);
    }
    std::fill(atPeak.begin(), atPeak.end(), Int4{});
    for (std::size_t lane = 0; lane < kLanes; ++lane)
        for (std::size_t i = 1; i < regions[lane].size(); ++i) {
            PeakRegion& left = regions[lane][i - 1];
            PeakRegion& right = regions[lane][i];
            right.first = lowest[static_cast<std::size_t>(right.peak)][lane];
            const bool acrossTheMiddle =
                left.peak < static_cast<Index>(middle) && right.peak >= static_cast<Index>(middle);
            if (acrossTheMiddle && !(power[static_cast<std::size_t>(right.first)][lane] < low.power[lane]))
                right.first = low.place[lane];
            left.end = right.first;
        }
}

void PeakRegions::Find(std::span<const Float4> power)
{
    FindHighBins(power);
    for (std::size_t lane = 0; lane < kLanes; ++lane)
        KeepPeaks(power, lane);
    FindBorders(power);
}

} // namespace sprout::stretch
