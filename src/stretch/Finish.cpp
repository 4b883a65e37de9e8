// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Finish.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <numeric>

#include "stretch/Float4.h"

namespace sprout::stretch {
namespace {

constexpr double kSmallestOffset = 64;
constexpr int kQuietStart = 64;

/// From 0 at `step` 0 towards 1 at `steps`, as a raised cosine, so that it
/// reaches silence without a corner.
float FadeGain(Index step, Index steps)
{
    const double way = static_cast<double>(step) / static_cast<double>(steps);
    return static_cast<float>(0.5 - 0.5 * std::cos(std::numbers::pi * way));
}

/// Clipped at full scale and rounded to the nearest numbers, halves to the even one: among floats as large as `large`,
/// neighbours are 1 apart.
Int4 ToWhole(Float4 four)
{
    const Float4 lowest = Float4{} - 32768.0F;
    const Float4 highest = Float4{} + 32767.0F;
    constexpr float large = 3 << 22;
    const Float4 notTooLow = Choose(four < lowest, lowest, four);
    const Float4 clipped = Choose(notTooLow > highest, highest, notTooLow);
    return __builtin_convertvector((clipped + large) - large, Int4);
}

} // namespace

std::vector<float> ToFloats(std::span<const std::int16_t> samples)
{
    const std::int64_t sum = std::accumulate(samples.begin(), samples.end(), std::int64_t{0});
    const double mean = samples.empty() ? 0 : static_cast<double>(sum) / static_cast<double>(samples.size());
    const float offset = std::abs(mean) > kSmallestOffset ? static_cast<float>(mean) : 0;
    std::vector<float> sound(samples.size());
    std::transform(samples.begin(), samples.end(), sound.begin(),
                   [offset](std::int16_t sample) { return static_cast<float>(sample) - offset; });
    return sound;
}

bool StartsQuietly(std::span<const std::int16_t> samples)
{
    return !samples.empty() && std::abs(static_cast<int>(samples.front())) < kQuietStart;
}

void FadeEnds(std::span<float> sound, bool startsQuietly, const Sizes& sizes)
{
    const Index count = std::ssize(sound);
    const Index out = std::min(sizes.endFade, count);
    for (Index i = 0; i < out; ++i)
        sound[static_cast<std::size_t>(count - 1 - i)] *= FadeGain(i, out);
    const Index in = startsQuietly ? std::min(sizes.startFade, count) : 0;
    for (Index i = 0; i < in; ++i)
        sound[static_cast<std::size_t>(i)] *= FadeGain(i, in);
}

std::vector<std::int16_t> ToSamples(std::span<const float> sound)
{
    std::vector<std::int16_t> samples(sound.size());
    std::size_t i = 0;
    for (; i + kLanes <= sound.size(); i += kLanes) {
        const Int4 whole = ToWhole(LoadFour(sound.data() + i));
        for (std::size_t lane = 0; lane < kLanes; ++lane)
            samples[i + lane] = static_cast<std::int16_t>(whole[lane]);
    }
    for (; i < sound.size(); ++i)
        samples[i] = static_cast<std::int16_t>(ToWhole(Float4{} + sound[i])[0]);
    return samples;
}

} // namespace sprout::stretch
