// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Song.h"

namespace sprout {

/// Plays a step's sound, rendered if it must be. A step that renders to nothing stays silent, and is rendered again
/// next time.
void PlayStepSound(TuneStep& step);

/// Plays the beat of a step as it is in its file.
void PlayStepBeat(TuneStep& step);

/// Plays a tune, rendered if it must be, behind `leadInSeconds` of silence.
void PlayEditedTune(Tune& tune, float leadInSeconds);

} // namespace sprout
