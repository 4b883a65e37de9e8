// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "core/Song.h"
#include "main_window/rules/TrackGeometry.h"

namespace sprout {

/// A maximal run of painted cells, both ends included; the last one is cut off at the view.
struct PaintedRun {
    std::int32_t firstCell = 0;
    std::int32_t lastCell = 0;
    friend bool operator==(const PaintedRun&, const PaintedRun&) = default;
};

/// A filled rectangle of whole pixels.
struct PixelRect {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// Where a tile is drawn: at x, with `width` of its pixels.
struct TilePlace {
    std::int32_t x = 0;
    std::int32_t width = 0;
    friend bool operator==(const TilePlace&, const TilePlace&) = default;
};

/// The runs of a track that reach into the view, from the left. A run that begins before the view keeps its first cell,
/// because its marks are counted from there.
[[nodiscard]] std::vector<PaintedRun> VisibleRuns(const Track& track, std::int32_t songCells, const TrackView& view);

/// Number of cells after which a track's marks repeat: the tune's steps, or the audio at the reference tempo; at least
/// 1.
[[nodiscard]] std::int32_t CycleCells(const Track& track);

/// Tiles of `tileWidth` pixels, edge to edge along a run. The last one is cut to the run's end; tiles that end left of
/// the view are skipped.
[[nodiscard]] std::vector<TilePlace> RunTiles(const PaintedRun& run, const TrackView& view, std::int32_t tileWidth);

/// The black marks of a run in the row at `rowTop`: its edges, the starts of its cycles and its end.
[[nodiscard]] std::vector<PixelRect> RunMarks(const PaintedRun& run, std::int32_t cycleCells, const TrackView& view,
                                              std::int32_t rowTop);

} // namespace sprout
