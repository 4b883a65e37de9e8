// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongPaint.h"

#include "base/ByteCursor.h"
#include "songs/SongVersions.h"

namespace sprout {

SongState ReadSongPaint(const std::filesystem::path& path, std::int32_t mostTracks)
{
    FileSource source(path);
    SongState song;
    if (const SongVersion* const version = FindSongVersion(source)) {
        LongsReader data = SongArray(source);
        version->loadPaint(data, song, {mostTracks, kSongCells});
    }
    return song;
}

} // namespace sprout
