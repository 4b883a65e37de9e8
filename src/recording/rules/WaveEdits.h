// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/WaveData.h"

namespace sprout {

enum class VolumeChange { Up = 0, Down = 1 };

/// Makes samples `first` to `last` (1 to `Length`) a quarter louder or a fifth softer: rounded to nearest, halves to
/// the even number, and held to what the wave's bits can hold.
///
/// One pass, and a copy of what the wave shares with others. Throws std::bad_alloc, and the wave is as it was.
void ChangeVolume(VolumeChange change, std::int32_t first, std::int32_t last, WaveData& wave);

/// The wave without samples `first` to `last` (1 to `Length`, not all of them), in memory of its own. One pass over
/// what is left.
[[nodiscard]] WaveData CutSamples(const WaveData& wave, std::int32_t first, std::int32_t last);

} // namespace sprout
