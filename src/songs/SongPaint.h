// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

#include "core/Song.h"

namespace sprout {

/// Reads what is painted in a song file of any version: `SongCells`, `Tempo`, and of the first `mostTracks` tracks
/// `TrackType` and the first `kSongCells` cells of `Painted`. `TrackCount` is the number of these tracks, all else
/// stays empty; another version gives a song without tracks.
///
/// Sounds are skipped by their lengths, and no other file is looked at, so a song of any size takes milliseconds and
/// little memory. Throws `RunTimeError` if the file cannot be opened or the song is damaged as far as it was read.
[[nodiscard]] SongState ReadSongPaint(const std::filesystem::path& path, std::int32_t mostTracks);

} // namespace sprout
