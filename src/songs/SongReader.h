// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/Longs.h"
#include "core/Song.h"
#include "songs/SongVersions.h"

namespace sprout {

// Blocks that several versions of the song file share. All throw `RunTimeError` if the data is invalid.

/// Fewest elements in a packed text: an empty one.
inline constexpr std::int64_t kTextElements = 2;

/// Reads `SongCells` and `Tempo`, followed by the song's title and author.
void ReadSongHead(LongsReader& data, SongState& song);

/// Makes room for `count` tracks; each takes at least a type and its cells.
void MakeTracks(LongsReader& data, SongState& song, std::int32_t count);

/// Reads the type and the cells at the start of every track; keeps the first `keptCells` of the `songCells` cells.
void ReadPaint(LongsReader& data, Track& track, std::int32_t songCells, std::int32_t keptCells);

/// Reads `DateStamp`, `CreatedBy` and `Picture` of a tune inside the file.
void ReadTuneHead(LongsReader& data, Tune& tune);

// What readers of the paint alone have in common.

/// Reads `SongCells` and `Tempo` and moves behind the two texts.
void ReadPaintHead(LongsReader& data, SongState& song);

/// Moves behind what `ReadTuneHead` reads.
void SkipTuneHead(LongsReader& data);

/// Reads the paint of the first tracks of `count` and moves behind their sounds. limits: what is kept. skipMusic: moves
/// behind what a music track has besides its cells.
void ReadPaintOfTracks(LongsReader& data, SongState& song, std::int32_t count, const PaintLimits& limits,
                       void (*skipMusic)(LongsReader&));

} // namespace sprout
