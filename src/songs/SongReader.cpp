// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/SongReader.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "core/SongSizes.h"

namespace sprout {

namespace {

void ReadGrid(LongsReader& data, SongState& song)
{
    song.SongCells = data.Get();
    song.Tempo = data.Get();
}

void RequirePaint(const LongsReader& data, const SongState& song, std::int32_t count)
{
    if (count == 0)
        return;
    data.Require(song.SongCells, 1);
    data.Require(count, std::int64_t{1} + song.SongCells);
}

} // namespace

void ReadSongHead(LongsReader& data, SongState& song)
{
    ReadGrid(data, song);
    song.SongTitle = data.GetText();
    song.SongCreatedBy = data.GetText();
}

void MakeTracks(LongsReader& data, SongState& song, std::int32_t count)
{
    RequirePaint(data, song, count);
    ResizeTracks(song, count);
}

void ReadPaint(LongsReader& data, Track& track, std::int32_t songCells, std::int32_t keptCells)
{
    track.TrackType = data.Get();
    data.Require(songCells, 1);
    track.Painted.resize(static_cast<std::size_t>(keptCells) + 1);
    data.GetMany(std::span(track.Painted).subspan(1));
    data.SkipMany(songCells - keptCells, 1);
}

void ReadTuneHead(LongsReader& data, Tune& tune)
{
    tune.DateStamp = data.GetText();
    tune.CreatedBy = data.GetText();
    tune.Picture = data.GetPicture();
}

void ReadPaintHead(LongsReader& data, SongState& song)
{
    ReadGrid(data, song);
    data.SkipText();
    data.SkipText();
}

void SkipTuneHead(LongsReader& data)
{
    data.SkipText();
    data.SkipText();
    data.SkipPicture();
}

void ReadPaintOfTracks(LongsReader& data, SongState& song, std::int32_t count, const PaintLimits& limits,
                       void (*skipMusic)(LongsReader&))
{
    RequirePaint(data, song, count);
    ResizeTracks(song, std::min(count, limits.tracks));
    for (std::int32_t i = 1; i <= song.TrackCount; ++i) {
        Track& track = At(song.Tracks, i);
        ReadPaint(data, track, song.SongCells, std::min(song.SongCells, limits.cells));
        if (track.IsMusic())
            skipMusic(data);
        else if (track.IsAudio())
            data.SkipWave();
    }
}

} // namespace sprout
