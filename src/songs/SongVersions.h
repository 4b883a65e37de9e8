// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

/// How much of a song's paint is kept.
struct PaintLimits {
    std::int32_t tracks = 0;
    std::int32_t cells = 0; ///< of each track
};

/// A version of the song file. Each reader fills an empty song from the file's array, which is at element 1, and throws
/// `RunTimeError` if the data is invalid.
struct SongVersion {
    float number = 0;
    void (*load)(LongsReader& data, SongState& song) = nullptr;
    /// Takes only the grid and the paint of the first tracks, and does not look at what follows those tracks. The
    /// memory that it takes depends on `limits` alone.
    void (*loadPaint)(LongsReader& data, SongState& song, const PaintLimits& limits) = nullptr;
};

/// The version of a file; null if this program does not know it.
[[nodiscard]] const SongVersion* FindSongVersion(ByteSource& source);

/// The array of a song's file. Throws `RunTimeError` if there is none.
[[nodiscard]] LongsReader SongArray(ByteSource& source);

/// Beats come before the tracks; each tune is inside the file or in the Tunes folder.
void Load_Song_V20(LongsReader& data, SongState& song);
void Load_Paint_V20(LongsReader& data, SongState& song, const PaintLimits& limits);

/// Each track contains its one beat and its tune, or their names.
void Load_Song_V11(LongsReader& data, SongState& song);
void Load_Paint_V11(LongsReader& data, SongState& song, const PaintLimits& limits);

/// Each track names a beat in the Beats folder and a star in the Stars folder.
void Load_Song_V10(LongsReader& data, SongState& song);
void Load_Paint_V10(LongsReader& data, SongState& song, const PaintLimits& limits);

/// The array of a song in version 2.
[[nodiscard]] LongsWriter Write_Song_Data(const SongState& song);

/// Merges equal beats, drops beats that no step of a music track uses, and renumbers the steps.
void Compact_Song_Beats(SongState& song);

} // namespace sprout
