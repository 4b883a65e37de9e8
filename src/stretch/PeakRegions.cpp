// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/PeakRegions.h"

#include <algorithm>
#include <cstring>

namespace sprout::stretch {
namespace {

// The side lobes of a Hann window fall with the sixth power of the distance; in bins of a transform a third longer than
// the window this lies 6 dB above them.
constexpr float kSkirt = 2.25F;

/// Those of four consecutive bins that are wanted, one behind the other.
struct Wanted {
    alignas(Int4) std::array<std::int32_t, kLanes> bins{};
    std::size_t count = 0;
};

/// For each combination of four bits, one for each of the bins.
constexpr std::array<Wanted, 16> kWanted = [] {
    std::array<Wanted, 16> all{};
    for (unsigned bits = 0; bits < all.size(); ++bits)
        for (int bin = 0; bin < kLanes; ++bin)
            if ((bits >> bin & 1U) != 0)
                all[bits].bins[all[bits].count++] = bin;
    return all;
}();

/// -1 in the lanes in which a bin is above its neighbours.
inline Int4 IsHigh(const Float4* bin)
{
    return (bin[0] > bin[-1]) & (bin[0] >= bin[1]) & (bin[0] > bin[-2]) & (bin[0] >= bin[2]);
}

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
        lane.resize(static_cast<std::size_t>(bins) + kLanes); // four are written at once
}

/// Adds those of the four bins from `first` on whose bits are set.
inline void PeakRegions::AddHighBins(std::size_t lane, std::size_t first, unsigned bits)
{
    const Wanted& wanted = kWanted[bits];
    Int4 bins;
    std::memcpy(&bins, wanted.bins.data(), sizeof bins);
    bins += static_cast<std::int32_t>(first);
    std::memcpy(highBins[lane].data() + highBinCounts[lane], &bins, sizeof bins);
    highBinCounts[lane] += wanted.count;
}

/// Lists the bins above their neighbours, four bins of a lane at once and without a branch, which would often be
/// mispredicted: all places of a list are written, and those count that belong to it.
void PeakRegions::FindHighBins(std::span<const Float4> power)
{
    highBinCounts = {};
    std::size_t bin = 2;
    for (; bin + kLanes + 1 < power.size(); bin += kLanes) {
        const Float4* const here = power.data() + bin;
        std::array high{IsHigh(here), IsHigh(here + 1), IsHigh(here + 2), IsHigh(here + 3)};
        Transpose(high[0], high[1], high[2], high[3]);
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            AddHighBins(lane, bin, LaneBits(high[lane]));
    }
    for (; bin + 2 < power.size(); ++bin) {
        const unsigned high = LaneBits(IsHigh(power.data() + bin));
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            AddHighBins(lane, bin, high >> lane & 1U);
    }
}

/// Lists the peaks of one lane: bins above their neighbours that no other one hides under its skirt.
void PeakRegions::KeepPeaks(std::span<const Float4> power, std::size_t lane)
{
    const auto powerAt = [power, lane](Index bin) { return power[static_cast<std::size_t>(bin)][lane]; };
    std::vector<PeakRegion>& peaks = regions[lane];
    peaks.resize(highBinCounts[lane]);
    std::size_t count = 0;
    for (const std::int32_t bin : std::span(highBins[lane]).first(highBinCounts[lane])) {
        const float here = powerAt(bin);
        while (count > 0 && IsHidden(powerAt(peaks[count - 1].peak), here, bin - peaks[count - 1].peak))
            --count;
        if (count == 0 || !IsHidden(here, powerAt(peaks[count - 1].peak), bin - peaks[count - 1].peak))
            peaks[count++] = {.first = 0, .peak = bin, .end = std::ssize(power)};
    }
    peaks.resize(count);
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
