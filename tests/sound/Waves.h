// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

using SampleList = std::vector<std::int16_t>;

inline WaveData MonoWave(const SampleList& samples, std::int32_t rate = 44100, std::int32_t bits = 16)
{
    WaveData wave;
    wave.Bits = bits;
    wave.Channels = 1;
    wave.Rate = rate;
    wave.WavL = Channel::FromSamples(samples);
    wave.Length = wave.WavL.UpperBound();
    return wave;
}

inline WaveData StereoWave(const SampleList& left, const SampleList& right, std::int32_t rate = 44100,
                           std::int32_t bits = 16)
{
    WaveData wave = MonoWave(left, rate, bits);
    wave.Channels = 2;
    wave.WavR = Channel::FromSamples(right);
    return wave;
}

/// A stereo wave with one value.
inline WaveData LevelWave(std::int32_t length, std::int16_t value)
{
    return StereoWave(SampleList(static_cast<std::size_t>(length), value),
                      SampleList(static_cast<std::size_t>(length), value));
}

/// A stereo wave in which all frames and both channels differ.
inline WaveData RampWave(std::int32_t length, std::int32_t seed = 1)
{
    SampleList left, right;
    for (std::int32_t i = 1; i <= length; ++i) {
        left.push_back(static_cast<std::int16_t>((i * 7 + seed * 31) % 2001 - 1000));
        right.push_back(static_cast<std::int16_t>((i * 13 + seed * 17) % 1501 - 750));
    }
    return StereoWave(left, right);
}

inline SampleList ListOf(const Channel& channel)
{
    const auto samples = channel.Samples();
    return {samples.begin(), samples.end()};
}

} // namespace sprout
