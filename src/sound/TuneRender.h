// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "core/Song.h"
#include "core/WaveData.h"

namespace sprout {

/// A step's sound with its instrument from `SongBeats` by `BeatIndex`; the test tone where there is none.
[[nodiscard]] WaveData RenderStep(const TuneStep& step);

/// A step's sound with its own `StepBeat`, which is loaded if it is not yet; the test tone where it has no name.
[[nodiscard]] WaveData RenderOwnBeatStep(TuneStep& step);

/// Fills `TuneWave` of a track's tune with one cycle, one frame longer than its steps at the shared tempo, or more
/// where the last sounds ring on. A run-time error leaves an empty wave; the tune is valid afterwards either way.
void RenderStarCycle(Tune& tune);

/// The same for the tune under edit, whose steps hold their own beats.
void RenderTuneCycle(Tune& tune);

/// Renders the steps of a track's tune that are on and not valid; equal steps share one rendering, and all that is new
/// is rendered on all cores.
void RenderTrackSteps(Tune& tune);

/// `RenderTrackSteps` for several tunes at once, so that all their new steps share the cores.
void RenderTrackSteps(std::span<Tune* const> tunes);

} // namespace sprout
