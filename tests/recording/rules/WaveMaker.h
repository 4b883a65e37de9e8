// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

/// A mono wave at the program's sample rate.
inline WaveData MonoOf(const std::vector<std::int16_t>& samples, std::int32_t bits = 16)
{
    WaveData wave;
    wave.Bits = bits;
    wave.Channels = 1;
    wave.WavL = Channel::FromSamples(samples);
    wave.Length = wave.WavL.UpperBound();
    return wave;
}

inline WaveData StereoOf(const std::vector<std::int16_t>& left, const std::vector<std::int16_t>& right)
{
    WaveData wave = MonoOf(left);
    wave.Channels = 2;
    wave.WavR = Channel::FromSamples(right);
    return wave;
}

/// A silent mono wave.
inline WaveData SilenceOf(std::int32_t length)
{
    return MonoOf(std::vector<std::int16_t>(static_cast<std::size_t>(length)));
}

inline std::vector<std::int16_t> SamplesOf(const Channel& channel)
{
    return {channel.Samples().begin(), channel.Samples().end()};
}

} // namespace sprout
