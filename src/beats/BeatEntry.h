// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

// The beat in songs and tunes, after its name.

/// Writes a beat: 1 and its content, or only 0 if it is kept outside the file and exists there.
void WriteBeatEntry(LongsWriter& data, const Beat& beat);

/// Reads what follows the 1: `DateStamp`, `Sound` and `Picture`. Throws `RunTimeError` if the data is invalid.
void ReadStoredBeat(LongsReader& data, Beat& beat);

/// Moves behind the same, with the same errors.
void SkipStoredBeat(LongsReader& data);

} // namespace sprout
