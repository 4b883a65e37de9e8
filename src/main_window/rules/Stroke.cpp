// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/Stroke.h"

#include <algorithm>

#include "core/SongChanges.h"

namespace sprout {

PressAction ActionOfPress(Tool tool, const TrackHit& hit)
{
    if (!hit.hit)
        return PressAction::Nothing;
    if (hit.track == kWholeSong)
        return PressAction::PlaySongFrom;
    return tool == Tool::PlayTool ? PressAction::PlayTrackFrom : PressAction::BeginStroke;
}

bool Stroke::Begin(SongState& song, Tool tool, const TrackHit& hit, std::int32_t y)
{
    dragging = true;
    downY = y;
    dragTrack = hit.track;
    dragStart = dragMax = dragMin = hit.cell;
    dragCells.assign(static_cast<std::size_t>(song.SongCells) + 1, kUntouchedCell);

    auto& value = At(At(song.Tracks, hit.track).Painted, hit.cell);
    const auto written = static_cast<std::int32_t>(tool);
    if (value == written)
        return false;
    value = written;
    SongChanges::PaintPressed(song, hit.track);
    return true;
}

bool Stroke::MoveTo(SongState& song, Tool tool, std::int32_t cell)
{
    if (!dragging || tool == Tool::PlayTool || dragTrack > song.TrackCount)
        return false;
    Track& track = At(song.Tracks, dragTrack);
    const std::int32_t reached = std::clamp(cell, 1, song.SongCells);
    bool changed = false;
    if (tool == Tool::Eraser)
        changed = Erase(track, reached);
    else if (reached < dragStart)
        changed = PaintLeft(track, reached);
    else if (reached > dragStart)
        changed = PaintRight(track, reached);
    if (changed)
        SongChanges::PaintDragged(track);
    return changed;
}

bool Stroke::Erase(Track& track, std::int32_t cell) const
{
    bool changed = false;
    for (std::int32_t i = std::min(dragStart, cell); i <= std::max(dragStart, cell); ++i) {
        changed = changed || At(track.Painted, i) != kErasedCell;
        At(track.Painted, i) = kErasedCell;
    }
    return changed;
}

bool Stroke::PaintLeft(Track& track, std::int32_t cell)
{
    bool changed = false;
    dragMin = std::min(cell, dragMin);
    for (std::int32_t i = dragStart; i >= cell; --i)
        changed |= PaintCell(track, i);
    for (std::int32_t i = cell - 1; i >= dragMin; --i)
        changed |= TakeBackCell(track, i);
    return changed;
}

bool Stroke::PaintRight(Track& track, std::int32_t cell)
{
    bool changed = false;
    dragMax = std::max(cell, dragMax);
    for (std::int32_t i = dragStart; i <= cell; ++i)
        changed |= PaintCell(track, i);
    for (std::int32_t i = cell + 1; i <= dragMax; ++i)
        changed |= TakeBackCell(track, i);
    return changed;
}

bool Stroke::PaintCell(Track& track, std::int32_t cell)
{
    if (track.IsPainted(cell))
        return false;
    At(track.Painted, cell) = kPaintedCell;
    At(dragCells, cell) = kPaintedCell;
    return true;
}

bool Stroke::TakeBackCell(Track& track, std::int32_t cell)
{
    // The equality is intended: 1 and 1 was painted by this stroke, 1 and 0 before it. An untouched cell, 0 and 0,
    // becomes 2, which looks the same and counts as a change.
    if (At(track.Painted, cell) != At(dragCells, cell))
        return false;
    At(track.Painted, cell) = kErasedCell;
    At(dragCells, cell) = kUntouchedCell;
    return true;
}

} // namespace sprout
