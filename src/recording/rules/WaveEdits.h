// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/WaveData.h"

namespace sprout {

enum class VolumeChange { Up = 0, Down = 1 };

/// Makes samples `first` to `last` (1 to `Length`) a quarter louder or a fifth softer: rounded to nearest, halves to
/// even, and clamped to the range of the wave's bits.
///
/// One pass; copies what the wave shares with others. If it throws std::bad_alloc, the wave is unchanged.
void ChangeVolume(VolumeChange change, std::int32_t first, std::int32_t last, WaveData& wave);

/// The wave without samples `first` to `last` (1 to `Length`, not all of them), in its own memory. One pass over the
/// rest.
[[nodiscard]] WaveData CutSamples(const WaveData& wave, std::int32_t first, std::int32_t last);

} // namespace sprout
