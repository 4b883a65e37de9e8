// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

// The beat as songs and tunes hold it, behind its name.

/// Writes a beat: 1 and what the file is to carry of it, or 0 alone where it is kept outside and is there.
void WriteBeatEntry(LongsWriter& data, const Beat& beat);

/// Reads what stands behind the 1: `DateStamp`, `Sound` and `Picture`. Throws `RunTimeError` for what cannot be there.
void ReadStoredBeat(LongsReader& data, Beat& beat);

} // namespace sprout
