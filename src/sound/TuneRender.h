// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "base/WaveData.h"
#include "core/Song.h"
#include "sound/RenderSetting.h"

namespace sprout {

/// A step's sound with its instrument from `SongBeats` by `BeatIndex`, which is loaded if necessary; the test tone if
/// there is none. A run-time error gives an empty wave. Flags and `StepWave` do not change. Throws std::bad_alloc.
[[nodiscard]] WaveData RenderStep(const TuneStep& step);

/// The same with the step's own `StepBeat`; the test tone if it has no name.
[[nodiscard]] WaveData RenderOwnBeatStep(TuneStep& step);

/// Fills `TuneWave` of a track's tune with one cycle, one frame longer than its steps at the shared tempo, or more if
/// the last sounds ring on. A run-time error leaves an empty wave; the tune is then valid in either case. Throws
/// std::bad_alloc; the tune's validity is then unchanged.
void RenderStarCycle(Tune& tune);

/// The same for the tune being edited, whose steps have their own beats.
void RenderTuneCycle(Tune& tune);

/// Renders the steps of a track's tune that are on and not valid; equal steps share one rendering, and new ones are
/// rendered on all cores. A step that copies an earlier one's sound does not become valid. Throws `RunTimeError`,
/// std::bad_alloc.
void RenderTrackSteps(Tune& tune);

/// The same for several tunes of one song at once, so that all their new steps share the cores.
void RenderTrackSteps(std::span<Tune* const> tunes, const RenderSetting& setting);

} // namespace sprout
