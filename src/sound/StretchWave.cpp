// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StretchWave.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

#include "base/Numbers.h"
#include "service/Services.h"
#include "service/Stretch.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace {

constexpr std::int32_t kShortestTouched = 3;     // fewer frames stay unchanged
constexpr std::int32_t kShortestStretched = 512; // fewer give silence
constexpr double kLowestFactor = 0.5;
constexpr double kHighestFactor = 2.0;

float Factor(double value)
{
    return static_cast<float>(std::clamp(value, kLowestFactor, kHighestFactor));
}

std::int16_t ShiftUp(std::int16_t sample)
{
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(sample) << 8);
}

std::int16_t ShiftDown(std::int16_t sample)
{
    return static_cast<std::int16_t>(std::min(RoundHalfEven(sample / 256.0), 127));
}

/// The stretched samples of one channel, in 16 bits; nothing if the service fails.
std::optional<Channel> CallService(std::span<const std::int16_t> samples, std::int32_t rate, float pitchFactor,
                                   float durationFactor)
{
    const std::vector<std::int16_t> stretched =
        TheServices().stretch->Change(samples, rate, pitchFactor, durationFactor);
    return stretched.empty() ? std::nullopt : std::optional(Channel::FromSamples(stretched));
}

std::optional<Channel> StretchChannel(const WaveData& wave, const Channel& channel, float pitchFactor,
                                      float durationFactor)
{
    if (wave.Length < kShortestStretched || wave.Length > kLongestWaveFrames)
        return std::nullopt;
    const auto samples = FramesOf(channel, wave.Length);
    if (wave.Bits != 8)
        return CallService(samples, wave.Rate, pitchFactor, durationFactor);
    std::vector<std::int16_t> work(samples.size());
    std::transform(samples.begin(), samples.end(), work.begin(), ShiftUp);
    std::optional<Channel> stretched = CallService(work, wave.Rate, pitchFactor, durationFactor);
    if (stretched) {
        const auto made = stretched->Change();
        std::transform(made.begin(), made.end(), made.begin(), ShiftDown);
    }
    return stretched;
}

/// Adds the right channel to a result that has its left one.
void StretchRight(WaveData& result, const WaveData& wave, float pitchFactor, float durationFactor)
{
    // The same samples give the same result, so a mono sound in two channels is stretched once.
    if (wave.WavR == wave.WavL) {
        result.WavR = result.WavL;
        return;
    }
    std::optional<Channel> right = StretchChannel(wave, wave.WavR, pitchFactor, durationFactor);
    if (!right) {
        result.WavR = Channel(result.Length);
        return;
    }
    result.WavR = *std::move(right);
    result.Length = std::max(result.Length, result.WavR.UpperBound());
    result.WavL.Resize(result.Length);
    result.WavR.Resize(result.Length);
}

} // namespace

WaveData StretchWave(const WaveData& wave, float pitchFactor, float durationFactor)
{
    if (wave.Length < kShortestTouched)
        return wave;
    WaveData result;
    result.Bits = wave.Bits;
    result.Channels = wave.Channels;
    result.Rate = wave.Rate;
    std::optional<Channel> left = StretchChannel(wave, wave.WavL, pitchFactor, durationFactor);
    if (!left) {
        result.WavL = Channel(std::min(wave.Length, wave.WavL.UpperBound()));
        return result;
    }
    result.WavL = *std::move(left);
    result.Length = result.WavL.UpperBound();
    if (wave.Channels == 2)
        StretchRight(result, wave, pitchFactor, durationFactor);
    return result;
}

float PitchFactor(std::int32_t pitchShift)
{
    return Factor(std::exp2(pitchShift / 12.0));
}

float DurationFactor(std::int32_t duration)
{
    return Factor(duration >= 100 ? duration / 100.0 : duration / 200.0 + 0.5);
}

} // namespace sprout
