// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveEdits.h"

#include <algorithm>
#include <span>

namespace sprout {

namespace {

constexpr float kLouder = 1.25F;
constexpr float kSofter = 0.8F;

/// Adding and taking away 1.5 x 2^23 rounds a float below 2^22 to the nearest whole number, halves to the even one,
/// with two plain additions, which the compiler can do for several samples at once.
constexpr float kRounder = 12582912.0F;

struct Limits {
    float low;
    float high;
};

void Scale(std::span<std::int16_t> samples, float factor, Limits limits)
{
    for (std::int16_t& sample : samples) {
        const float rounded = (factor * static_cast<float>(sample) + kRounder) - kRounder;
        const float held = std::min(std::max(rounded, limits.low), limits.high);
        sample = static_cast<std::int16_t>(static_cast<std::int32_t>(held));
    }
}

Channel Without(const Channel& channel, std::int32_t first, std::int32_t last)
{
    const std::span<const std::int16_t> samples = channel.Samples();
    const auto head = static_cast<std::size_t>(first - 1);
    const std::span<const std::int16_t> tail = samples.subspan(static_cast<std::size_t>(last));
    Channel left = Channel::Unfilled(static_cast<std::int32_t>(head + tail.size()));
    const auto place = left.Change().begin() + 1;
    std::copy_n(samples.begin(), head, place);
    std::copy(tail.begin(), tail.end(), place + static_cast<std::ptrdiff_t>(head));
    return left;
}

} // namespace

void ChangeVolume(VolumeChange change, std::int32_t first, std::int32_t last, WaveData& wave)
{
    const float factor = change == VolumeChange::Up ? kLouder : kSofter;
    const Limits limits = wave.Bits == 8 ? Limits{-128, 127} : Limits{-32768, 32767};
    const auto begin = static_cast<std::size_t>(first);
    const auto count = static_cast<std::size_t>(last - first) + 1;
    // Both channels first: where the memory for one is missing, no sample has changed.
    const std::span<std::int16_t> left = wave.WavL.Change();
    const std::span<std::int16_t> right = wave.Channels == 2 ? wave.WavR.Change() : std::span<std::int16_t>();
    Scale(left.subspan(begin, count), factor, limits);
    if (wave.Channels == 2)
        Scale(right.subspan(begin, count), factor, limits);
}

WaveData CutSamples(const WaveData& wave, std::int32_t first, std::int32_t last)
{
    WaveData left = wave;
    left.WavL = Without(wave.WavL, first, last);
    if (wave.Channels == 2)
        left.WavR = wave.WavR.SharesBlockWith(wave.WavL) ? left.WavL : Without(wave.WavR, first, last);
    left.Length = wave.Length - (last - first + 1);
    return left;
}

} // namespace sprout
