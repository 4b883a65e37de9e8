// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/OnsetDetector.h"

#include <algorithm>
#include <array>

#include "stretch/Float4.h"

namespace sprout::stretch {
namespace {

constexpr Index kHopsBefore = 10;
constexpr Index kHopsApart = 12;
constexpr float kRise = 3;
constexpr float kShareOfLargest = 1e-3F;
// The stroke begins where this share of its hop's energy is reached.
constexpr float kShareOfHop = 0.02F;

float SecondDifference(std::span<const float> sound, Index at)
{
    const auto sample = [&](Index i) { return i < 0 ? 0 : sound[static_cast<std::size_t>(i)]; };
    return sample(at) - 2 * sample(at - 1) + sample(at - 2);
}

/// Energy of the second difference from `first` up to `end`.
float Energy(std::span<const float> sound, Index first, Index end)
{
    float sum = 0;
    for (Index i = first; i < end; ++i) {
        const float difference = SecondDifference(sound, i);
        sum += difference * difference;
    }
    return sum;
}

/// The energies of the four hops from `first` on, one in each lane.
Float4 EnergiesOfFour(std::span<const float> sound, Index first, Index hop)
{
    const auto sample = [&](Index i) { return i < 0 ? 0 : sound[static_cast<std::size_t>(i)]; };
    Float4 before{};
    Float4 last{};
    for (Index lane = 0; lane < kLanes; ++lane) {
        before[lane] = sample(first + lane * hop - 2);
        last[lane] = sample(first + lane * hop - 1);
    }
    Float4 sum{};
    for (const float* at = sound.data() + first; at < sound.data() + first + hop; at += kLanes) {
        std::array four{LoadFour(at), LoadFour(at + hop), LoadFour(at + 2 * hop), LoadFour(at + 3 * hop)};
        Transpose(four[0], four[1], four[2], four[3]);
        for (const Float4 here : four) {
            const Float4 difference = here - 2.0F * last + before;
            sum += difference * difference;
            before = last;
            last = here;
        }
    }
    return sum;
}

/// hop: a multiple of four.
std::vector<float> HopEnergies(std::span<const float> sound, Index hop)
{
    std::vector<float> energies;
    energies.reserve(sound.size() / static_cast<std::size_t>(hop) + 1);
    Index first = 0;
    for (; first + kLanes * hop <= std::ssize(sound); first += kLanes * hop) {
        const Float4 four = EnergiesOfFour(sound, first, hop);
        for (int lane = 0; lane < kLanes; ++lane)
            energies.push_back(four[lane]);
    }
    for (; first < std::ssize(sound); first += hop)
        energies.push_back(Energy(sound, first, std::min<Index>(first + hop, std::ssize(sound))));
    return energies;
}

/// The start of the stroke in the hop from `first` on, which has `energy`.
Index RefineOnset(std::span<const float> sound, Index first, float energy, const Sizes& sizes)
{
    const Index end = std::min<Index>(first + sizes.onsetHop, std::ssize(sound));
    float sum = 0;
    for (Index grain = first; grain < end; grain += sizes.onsetGrain) {
        sum += Energy(sound, grain, std::min(grain + sizes.onsetGrain, end));
        if (sum >= kShareOfHop * energy)
            return grain;
    }
    return first;
}

} // namespace

std::vector<Index> FindOnsets(std::span<const float> sound, const Sizes& sizes)
{
    const std::vector<float> energies = HopEnergies(sound, sizes.onsetHop);
    const float largest = energies.empty() ? 0 : *std::max_element(energies.begin(), energies.end());
    std::vector<Index> onsets;
    Index last = -kHopsApart;
    for (Index hop = 0; hop < std::ssize(energies); ++hop) {
        const auto here = energies.begin() + hop;
        const auto before = energies.begin() + std::max<Index>(0, hop - kHopsBefore);
        const float loudest = before == here ? 0 : *std::max_element(before, here);
        if (*here > kRise * loudest && *here > kShareOfLargest * largest && hop - last >= kHopsApart) {
            onsets.push_back(RefineOnset(sound, hop * sizes.onsetHop, *here, sizes));
            last = hop;
        }
    }
    return onsets;
}

} // namespace sprout::stretch
