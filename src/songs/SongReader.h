// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

// Blocks that several versions of the song file share. All throw `RunTimeError` if the data is invalid.

/// Fewest elements in a packed text: an empty one.
inline constexpr std::int64_t kTextElements = 2;

/// Reads `SongCells` and `Tempo`, followed by the song's title and author.
void ReadSongHead(LongsReader& data, SongState& song);

/// Makes room for `count` tracks; each takes at least a type and its cells.
void MakeTracks(LongsReader& data, SongState& song, std::int32_t count);

/// Reads the type and the cells at the start of every track.
void ReadPaint(LongsReader& data, Track& track, std::int32_t songCells);

/// Reads `DateStamp`, `CreatedBy` and `Picture` of a tune inside the file.
void ReadTuneHead(LongsReader& data, Tune& tune);

} // namespace sprout
