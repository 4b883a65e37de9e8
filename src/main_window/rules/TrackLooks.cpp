// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TrackLooks.h"

#include "core/SongTime.h"

namespace sprout {

namespace {

bool AnyCellIsPainted(const Track& track)
{
    return FindFirstPainted(track, static_cast<std::int32_t>(track.Painted.size()) - 1) != 0;
}

} // namespace

RowLook LookOfRow(const SongState& song, std::int32_t number, const TrackView& view)
{
    const Track& track = At(song.Tracks, number);
    RowLook look{track.TrackType, TileNumber(track.IsAudio(), number), CycleCells(track), true,
                 VisibleRuns(track, song.SongCells, view)};
    look.painted = !look.runs.empty() || AnyCellIsPainted(track);
    return look;
}

TopLook LookOfTop(const SongState& song, const TrackView& view)
{
    return {song.SongCells, song.Tempo, BusyMarks(song, view)};
}

} // namespace sprout
