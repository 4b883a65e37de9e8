// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>

#include "base/Errors.h"
#include "fuzz/FuzzSupport.h"
#include "songs/OpenSaveClass.h"
#include "songs/SongPaint.h"

namespace {

/// The paint that is read alone is that of the loaded song, as far as it is kept.
void ComparePaint(const std::filesystem::path& file)
{
    using namespace sprout;
    constexpr std::int32_t mostTracks = 3;
    const SongState& song = Shared().Song;
    try {
        const SongState paint = ReadSongPaint(file, mostTracks);
        for (std::int32_t track = 1; track <= std::min(paint.TrackCount, song.TrackCount); ++track)
            for (std::int32_t cell = 1; cell <= std::min(song.SongCells, kSongCells); ++cell)
                if (At(paint.Tracks, track).IsPainted(cell) != At(song.Tracks, track).IsPainted(cell))
                    std::abort();
    } catch (const RunTimeError&) {
        if (song.TrackCount != 0)
            std::abort();
    }
}

} // namespace

// All three versions: the head says which one it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sprout;
    const FuzzRun run;
    const std::filesystem::path file = run.Write(Shared().UserSongs / "input.TqSng", data, size);
    OpenSaveClass().Load_Song(file);
    ComparePaint(file);
    if (Shared().Song.TrackCount == 0)
        return 0;
    RenderLoadedSong();
    const auto saved = Shared().UserSongs / "output.TqSng";
    OpenSaveClass(Flush::No).Save_Song(saved);
    OpenSaveClass().Load_Song(saved);
    return 0;
}
