// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

#include "base/WaveData.h"

namespace sprout {

/// Most frames in the result of a sound operation: an hour at 44,100 Hz. A longer result throws `RunTimeError` before
/// its memory is allocated.
inline constexpr std::int32_t kLongestWaveFrames = 3600 * 44100;

/// Frames 1 to `length` of a channel; none if `length` is below 1. Throws `RunTimeError` if the channel has fewer.
[[nodiscard]] std::span<const std::int16_t> FramesOf(const Channel& channel, std::int32_t length);

/// Makes a wave mono or stereo. targetChannels: 1 or 2; 0 for the program's own.
///
/// In stereo, both channels share their samples. In mono, each frame is 0.75 x (left + right), clipped; throws
/// `RunTimeError` if a sum exceeds 16 bits.
[[nodiscard]] WaveData ConvertWaveChannels(const WaveData& wave, std::int32_t targetChannels);

/// Changes bits (8, 16) and rate (11025, 22050, 44100) of a wave. A target of 0 means the program's own.
///
/// Bits come first: x 256, or / 256 rounded, which can give 128. The rate is doubled with a cubic Bezier curve through
/// the samples, or halved without a filter by dropping every second sample; any other ratio leaves it unchanged. An
/// empty wave gives a blank record. Throws `RunTimeError` if an 8-bit sample x 256 exceeds 16 bits, or if the result
/// would be longer than `kLongestWaveFrames`.
[[nodiscard]] WaveData ConvertWaveFormat(const WaveData& wave, std::int32_t targetRate, std::int32_t targetBits);

/// Moves stereo sound to the right (percent above 0) or to the left by folding one channel into the other.
[[nodiscard]] WaveData ApplyWavePan(const WaveData& wave, std::int32_t panPercent);

/// Multiplies every sample by `volumePercent` and clips it at `clipPercent` of full scale (0: at full scale). Throws
/// `RunTimeError` if a clip above 100 lets a sample exceed 16 bits.
[[nodiscard]] WaveData ScaleWaveVolume(const WaveData& wave, std::int32_t volumePercent, std::int32_t clipPercent);

} // namespace sprout
