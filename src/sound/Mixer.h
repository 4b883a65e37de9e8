// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

/// One occurrence of a wave on the mixer's time line.
struct WaveFilePlacement {
    std::int32_t Offset = 0;    ///< frames from the start of the result, >= 0; 0 puts the first frame on frame 1
    std::int32_t WaveIndex = 0; ///< into the waves
};

/// Sums `placements` of `waves` on one time line and clips once.
///
/// waves: any format, by index; index 0 may be unused and is mixed as it is. Waves from 1 on are first converted to the
/// program's format. gain, pan, clip: percent; clip 100 is full scale (-32768..32767).
/// progress: as of `ParallelFor`, for the pieces of the work.
/// Returns a stereo wave in the program's format; its `Length` is the greatest Offset + `Length` of a wave that sounds,
/// 0 if none does. The result does not depend on the number of cores. Cost: one pass over every placed frame; memory: 4
/// bytes per result frame and a fixed block per core. Throws `RunTimeError` if a sum exceeds 32 bits, a placement or a
/// wave is invalid, or the result would be longer than `kLongestWaveFrames`; std::bad_alloc.
[[nodiscard]] WaveData MixWaves(std::vector<WaveData> waves, std::span<const WaveFilePlacement> placements,
                                std::int32_t gain, std::int32_t pan, std::int32_t clip,
                                const std::function<void(std::size_t, std::size_t)>& progress = {});

} // namespace sprout
