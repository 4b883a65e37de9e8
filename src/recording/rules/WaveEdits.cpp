// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveEdits.h"

#include <algorithm>
#include <bit>
#include <span>

namespace sprout {

namespace {

constexpr float kLouder = 1.25F;
constexpr float kSofter = 0.8F;

/// Adding 1.5 x 2^23 to a float below 2^22 rounds it to the nearest whole number, halves to even, and leaves that
/// number in the low bits: one plain addition, which the compiler can vectorise.
constexpr float kRounder = 12582912.0F;

struct SampleLimits {
    float low;
    float high;
};

void Scale(std::span<std::int16_t> samples, float factor, SampleLimits limits)
{
    for (std::int16_t& sample : samples) {
        const float held = std::min(std::max(factor * static_cast<float>(sample), limits.low), limits.high);
        sample = static_cast<std::int16_t>(std::bit_cast<std::int32_t>(held + kRounder));
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
    const SampleLimits limits = wave.Bits == 8 ? SampleLimits{-128, 127} : SampleLimits{-32768, 32767};
    const auto begin = static_cast<std::size_t>(first);
    const auto count = static_cast<std::size_t>(last - first) + 1;
    // Get both channels first: if memory runs out for one, no sample has changed.
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
