// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/WaveData.h"

namespace sprout {

/// Makes a wave mono or stereo. targetChannels: 1 or 2; 0 for the program's own.
///
/// To stereo both channels share their samples. To mono each frame is 0.75 x (left + right), clipped; a sum beyond 16
/// bits throws `RunTimeError`.
[[nodiscard]] WaveData ConvertWaveChannels(const WaveData& wave, std::int32_t targetChannels);

/// Changes bits (8, 16) and rate (11025, 22050, 44100) of a wave. A target of 0 is the program's own.
///
/// Bits come first: x 256, or / 256 rounded, which can give 128. The rate is doubled by a cubic Bezier curve through
/// the samples, or halved by dropping every second sample, without a filter; any other ratio leaves it as it is. An
/// empty wave gives a blank record.
[[nodiscard]] WaveData ConvertWaveFormat(const WaveData& wave, std::int32_t targetRate, std::int32_t targetBits);

/// Moves the sound to the right (percent above 0) or to the left by folding one channel into the other; stereo.
[[nodiscard]] WaveData ApplyWavePan(const WaveData& wave, std::int32_t panPercent);

/// Multiplies every sample by `volumePercent` and clips it at `clipPercent` of full scale (0: at full scale).
[[nodiscard]] WaveData ScaleWaveVolume(const WaveData& wave, std::int32_t volumePercent, std::int32_t clipPercent);

} // namespace sprout
