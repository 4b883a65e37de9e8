// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

/// One sounding of a wave on the mixer's time line.
struct WaveFilePlacement {
    std::int32_t Offset = 0;    ///< frames from the start of the result, >= 0; 0 puts the first frame on frame 1
    std::int32_t WaveIndex = 0; ///< into the waves
};

/// Sums `placements` of `waves` on one time line and clips once.
///
/// waves: any format, by index; index 0 may be unused, and is mixed as it stands. Waves from 1 on are brought into the
/// program's format first. gain, pan, clip: percent; clip 100 is full scale (-32768..32767).
/// Returns a stereo wave in the program's format; `Length` is the greatest Offset + `Length` of a wave that sounds, 0
/// if none does. The result does not depend on the number of cores. Cost: one pass over every placed frame; memory 4
/// bytes a result frame and a fixed block a core. Throws `RunTimeError` where a sum leaves the 32-bit numbers, a place
/// or a wave is none, or the result would be longer than `kLongestWaveFrames`; std::bad_alloc.
[[nodiscard]] WaveData MixWaves(std::vector<WaveData> waves, std::span<const WaveFilePlacement> placements,
                                std::int32_t gain, std::int32_t pan, std::int32_t clip);

} // namespace sprout
