// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "core/Song.h"
#include "main_window/rules/TrackGeometry.h"

namespace sprout {

/// The three tools; brush and eraser write their numbers into a track's cells.
enum class Tool : std::int32_t { Brush = kPaintedCell, Eraser = kErasedCell, PlayTool = 3 };

/// What a left-button press on the painting surface should do.
enum class PressAction { Nothing, BeginStroke, PlaySongFrom, PlayTrackFrom };

/// Decides what a press does, from the tool and what is under the pointer.
[[nodiscard]] PressAction ActionOfPress(Tool tool, const TrackHit& hit);

/// A stroke of the brush or the eraser, from a press on a track to the release. When the pointer goes back, a brush
/// stroke is undone cell by cell.
class Stroke {
public:
    /// Writes the tool's number into the pressed cell. Only a press that changes its cell makes the mix stale and marks
    /// the song as changed. hit: a hit on a track. Returns whether the cell changed.
    bool Begin(SongState& song, Tool tool, const TrackHit& hit, std::int32_t y);

    /// Continues to `cell`, which may lie outside the song. Only the track's own render becomes stale, because the
    /// press has marked the rest. Returns whether a cell's value changed. Does nothing if no stroke is in progress,
    /// with the play tool, or if the track no longer exists.
    bool MoveTo(SongState& song, Tool tool, std::int32_t cell);

    /// Ends the stroke. What it painted is remembered until the next one begins.
    void End() { dragging = false; }

    [[nodiscard]] bool Dragging() const { return dragging; }
    [[nodiscard]] std::int32_t DragTrack() const { return dragTrack; }
    /// While dragging, every move counts as one at this height, which keeps a stroke on its row.
    [[nodiscard]] std::int32_t DownY() const { return downY; }

private:
    [[nodiscard]] bool Erase(Track& track, std::int32_t cell) const;
    [[nodiscard]] bool PaintLeft(Track& track, std::int32_t cell);
    [[nodiscard]] bool PaintRight(Track& track, std::int32_t cell);
    [[nodiscard]] bool PaintCell(Track& track, std::int32_t cell);
    [[nodiscard]] bool TakeBackCell(Track& track, std::int32_t cell);

    bool dragging = false;
    std::int32_t downY = 0;
    std::int32_t dragTrack = 0;
    std::int32_t dragStart = 0;
    std::int32_t dragMax = 0;                                           ///< rightmost cell reached
    std::int32_t dragMin = 0;                                           ///< leftmost cell reached
    std::vector<std::int32_t> dragCells = std::vector<std::int32_t>(1); ///< 1 for cells that this stroke painted
};

} // namespace sprout
