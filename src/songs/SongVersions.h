// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

// The song file's versions; `OpenSaveClass` chooses between them. Each reader fills an empty song from the file's
// array, which is at element 1, and throws `RunTimeError` if the data is invalid.

/// Beats come before the tracks; each tune is inside the file or in the Tunes folder.
void Load_Song_V20(LongsReader& data, SongState& song);

/// Each track contains its one beat and its tune, or their names.
void Load_Song_V11(LongsReader& data, SongState& song);

/// Each track names a beat in the Beats folder and a star in the Stars folder.
void Load_Song_V10(LongsReader& data, SongState& song);

/// The array of a song in version 2.
[[nodiscard]] LongsWriter Write_Song_Data(const SongState& song);

/// Merges equal beats, drops beats that no step of a music track uses, and renumbers the steps.
void Compact_Song_Beats(SongState& song);

} // namespace sprout
