// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongReader.h"

#include <cstddef>
#include <span>

#include "core/SongSizes.h"

namespace sprout {

void ReadSongHead(LongsReader& data, SongState& song)
{
    song.SongCells = data.Get();
    song.Tempo = data.Get();
    song.SongTitle = data.GetText();
    song.SongCreatedBy = data.GetText();
}

void MakeTracks(LongsReader& data, SongState& song, std::int32_t count)
{
    if (count != 0) {
        data.Require(song.SongCells, 1);
        data.Require(count, std::int64_t{1} + song.SongCells);
    }
    ResizeTracks(song, count);
}

void ReadPaint(LongsReader& data, Track& track, std::int32_t songCells)
{
    track.TrackType = data.Get();
    data.Require(songCells, 1);
    track.Painted.resize(static_cast<std::size_t>(songCells) + 1);
    data.GetMany(std::span(track.Painted).subspan(1));
}

void ReadTuneHead(LongsReader& data, Tune& tune)
{
    tune.DateStamp = data.GetText();
    tune.CreatedBy = data.GetText();
    tune.Picture = data.GetPicture();
}

} // namespace sprout
