// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

// Blocks that several versions of the song file share. All throw `RunTimeError` for what cannot be there.

/// Fewest elements of a packed text, an empty one.
inline constexpr std::int64_t kTextElements = 2;

/// Reads `SongCells` and `Tempo`, and behind them the two texts of the song's title and author.
void ReadSongHead(LongsReader& data, SongState& song);

/// Makes room for `count` tracks that take at least a type and their cells each.
void MakeTracks(LongsReader& data, SongState& song, std::int32_t count);

/// Reads the type and the cells that every track begins with.
void ReadPaint(LongsReader& data, Track& track, std::int32_t songCells);

/// Reads `DateStamp`, `CreatedBy` and `Picture` of a tune that the file holds.
void ReadTuneHead(LongsReader& data, Tune& tune);

} // namespace sprout
