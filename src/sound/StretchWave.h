// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/WaveData.h"

namespace sprout {

/// Changes pitch and duration of a wave with the stretch service, channel by channel. Factors 0.5 to 2.
///
/// Fewer than 3 frames stay unchanged; 3 to 511, or a failing service, give a silent wave of length 0. May be called
/// from several threads at once.
[[nodiscard]] WaveData StretchWave(const WaveData& wave, float pitchFactor, float durationFactor);

/// 2 ^ (semitones / 12), within 0.5..2.
[[nodiscard]] float PitchFactor(std::int32_t pitchShift);

/// d / 100 for d from 100 on, d / 200 + 0.5 below, within 0.5..2. duration: percent.
[[nodiscard]] float DurationFactor(std::int32_t duration);

} // namespace sprout
