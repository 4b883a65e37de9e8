// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Song.h"

namespace sprout {

/// Plays a step's sound, rendering it first if needed. A step that renders to nothing stays silent and is rendered
/// again next time.
void PlayStepSound(TuneStep& step);

/// Plays a step's beat as it is in its file.
void PlayStepBeat(TuneStep& step);

/// Plays a tune after `leadInSeconds` of silence, rendering it first if needed.
void PlayEditedTune(Tune& tune, float leadInSeconds);

} // namespace sprout
