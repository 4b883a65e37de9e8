// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Finish.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <numeric>

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

/// Clipped at full scale and rounded to the nearest number, halves to the even
/// one: among floats as large as `large`, neighbours are 1 apart. Without a
/// call, so that several samples are computed at once.
std::int16_t ToSample(float value)
{
    constexpr float large = 3 << 22;
    const float notTooLow = value < -32768.0F ? -32768.0F : value;
    const float clipped = notTooLow > 32767.0F ? 32767.0F : notTooLow;
    return static_cast<std::int16_t>(static_cast<std::int32_t>((clipped + large) - large));
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
    std::transform(sound.begin(), sound.end(), samples.begin(), ToSample);
    return samples;
}

} // namespace sprout::stretch
