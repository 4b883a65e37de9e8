// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Song.h"

namespace sprout {

// Sets one flag of a record and leaves everything else as it is, for tests that begin in the middle of a song's life.

void SetStepWaveValid(TuneStep& step, bool valid);
void SetTuneWaveValid(Tune& tune, bool valid);
void SetTrackRenderValid(Track& track, bool valid);
void SetSongMixValid(SongState& song, bool valid);
void SetSongChanged(SongState& song, bool changed);

} // namespace sprout
