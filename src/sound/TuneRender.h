// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "base/WaveData.h"
#include "core/Song.h"

namespace sprout {

/// A step's sound with its instrument from `SongBeats` by `BeatIndex`, which is loaded if it is not yet; the test tone
/// where there is none. A run-time error gives an empty wave. Flags and `StepWave` stay as they are. Throws
/// std::bad_alloc.
[[nodiscard]] WaveData RenderStep(const TuneStep& step);

/// The same with the step's own `StepBeat`; the test tone where it has no name.
[[nodiscard]] WaveData RenderOwnBeatStep(TuneStep& step);

/// Fills `TuneWave` of a track's tune with one cycle, one frame longer than its steps at the shared tempo, or more
/// where the last sounds ring on. A run-time error leaves an empty wave; the tune is valid afterwards either way.
/// Throws std::bad_alloc, and the tune is as valid as before.
void RenderStarCycle(Tune& tune);

/// The same for the tune under edit, whose steps hold their own beats.
void RenderTuneCycle(Tune& tune);

/// Renders the steps of a track's tune that are on and not valid; equal steps share one rendering, and all that is new
/// is rendered on all cores. A step that copies an earlier one's sound does not become valid. Throws `RunTimeError`,
/// std::bad_alloc.
void RenderTrackSteps(Tune& tune);

/// The same for several tunes at once, so that all their new steps share the cores.
void RenderTrackSteps(std::span<Tune* const> tunes);

} // namespace sprout
