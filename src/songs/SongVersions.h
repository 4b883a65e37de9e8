// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

// The song file's versions; `OpenSaveClass` chooses between them. Each reader fills an empty song from the file's
// array, which stands on its element 1, and throws `RunTimeError` for what cannot be there.

/// Beats stand ahead of the tracks, each tune inside or in the Tunes folder.
void Load_Song_V20(LongsReader& data, SongState& song);

/// Each track brings its one beat and its tune, or names them.
void Load_Song_V11(LongsReader& data, SongState& song);

/// Each track names a beat of the Beats folder and a star of the Stars folder.
void Load_Song_V10(LongsReader& data, SongState& song);

/// The array of a song in version 2.
[[nodiscard]] LongsWriter Write_Song_Data(const SongState& song);

/// Makes equal beats one, drops beats that no step of a music track uses, and renumbers the steps.
void Compact_Song_Beats(SongState& song);

} // namespace sprout
