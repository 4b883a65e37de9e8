// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

#include "base/WaveData.h"

namespace sprout {

/// Most frames of a wave that a sound operation makes: an hour at 44,100 Hz. What would be longer ends in a
/// `RunTimeError` before memory is taken for it.
inline constexpr std::int32_t kLongestWaveFrames = 3600 * 44100;

/// Frames 1 to `length` of a channel, none for a length below 1. Throws `RunTimeError` where the channel holds fewer.
[[nodiscard]] std::span<const std::int16_t> FramesOf(const Channel& channel, std::int32_t length);

/// Makes a wave mono or stereo. targetChannels: 1 or 2; 0 for the program's own.
///
/// To stereo both channels share their samples. To mono each frame is 0.75 x (left + right), clipped; a sum beyond 16
/// bits throws `RunTimeError`.
[[nodiscard]] WaveData ConvertWaveChannels(const WaveData& wave, std::int32_t targetChannels);

/// Changes bits (8, 16) and rate (11025, 22050, 44100) of a wave. A target of 0 is the program's own.
///
/// Bits come first: x 256, or / 256 rounded, which can give 128. The rate is doubled by a cubic Bezier curve through
/// the samples, or halved by dropping every second sample, without a filter; any other ratio leaves it as it is. An
/// empty wave gives a blank record. Throws `RunTimeError` where an 8-bit sample x 256 leaves the 16 bits, or the result
/// would be longer than `kLongestWaveFrames`.
[[nodiscard]] WaveData ConvertWaveFormat(const WaveData& wave, std::int32_t targetRate, std::int32_t targetBits);

/// Moves the sound to the right (percent above 0) or to the left by folding one channel into the other; stereo.
[[nodiscard]] WaveData ApplyWavePan(const WaveData& wave, std::int32_t panPercent);

/// Multiplies every sample by `volumePercent` and clips it at `clipPercent` of full scale (0: at full scale). Throws
/// `RunTimeError` where a clip above 100 lets a sample leave the 16 bits.
[[nodiscard]] WaveData ScaleWaveVolume(const WaveData& wave, std::int32_t volumePercent, std::int32_t clipPercent);

} // namespace sprout
