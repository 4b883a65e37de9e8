// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PaintedRuns.h"

#include <algorithm>

#include "core/SongTime.h"

namespace sprout {

namespace {

constexpr std::int32_t kTickHeight = 5;

std::int32_t RunEnd(const PaintedRun& run, const TrackView& view)
{
    return CellLeft(view, run.lastCell + 1);
}

PixelRect FullHeightLine(std::int32_t x, std::int32_t top)
{
    return {x, top, 1, kPaintHeight + 1};
}

std::int32_t EndLineLeft(const PaintedRun& run, std::int32_t cycleCells, const TrackView& view)
{
    if ((run.lastCell - run.firstCell + 1) % cycleCells == 0)
        return RunEnd(run, view) - 1;
    // Independent of the first cell in view: the end line of a run that ends inside a cycle does not scroll.
    return run.lastCell * kCellWidth;
}

/// Start of the run's second cycle, or of the first later one in view: even a very long run costs no more ticks than
/// the view shows.
std::int64_t SecondCycle(const PaintedRun& run, std::int32_t cycleCells, const TrackView& view)
{
    const std::int32_t cyclesAhead = std::max(view.FirstCell - run.firstCell - 1, 0) / cycleCells;
    return run.firstCell + std::int64_t{cycleCells} * (cyclesAhead + 1);
}

/// The first cell after the run that starts at `cell`.
std::int32_t CellBehindRun(const Track& track, std::int32_t cell, std::int32_t songCells)
{
    while (cell <= songCells && track.IsPainted(cell))
        ++cell;
    return cell;
}

} // namespace

std::vector<PaintedRun> VisibleRuns(const Track& track, std::int32_t songCells, const TrackView& view)
{
    const std::int32_t lastVisible = LastVisibleCell(view);
    const std::int32_t lastCell = std::min(songCells, static_cast<std::int32_t>(track.Painted.size()) - 1);
    std::vector<PaintedRun> runs;
    for (std::int32_t cell = 1; cell <= std::min(lastCell, lastVisible); ++cell) {
        if (!track.IsPainted(cell))
            continue;
        const std::int32_t behind = CellBehindRun(track, cell, lastCell);
        if (behind > view.FirstCell)
            runs.push_back({cell, std::min(behind - 1, lastVisible)});
        cell = behind;
    }
    return runs;
}

std::int32_t CycleCells(const Track& track)
{
    return track.IsAudio() ? AudioCycleCells(track.TrackAudio) : std::max(track.TrackTune.StepCount, 1);
}

std::vector<TilePlace> RunTiles(const PaintedRun& run, const TrackView& view, std::int32_t tileWidth)
{
    const std::int32_t end = RunEnd(run, view);
    std::vector<TilePlace> tiles;
    for (std::int32_t x = CellLeft(view, run.firstCell); x < end; x += tileWidth) {
        const std::int32_t width = std::min(tileWidth, end - x);
        if (x + width > 0)
            tiles.push_back({x, width});
    }
    return tiles;
}

std::vector<PixelRect> RunMarks(const PaintedRun& run, std::int32_t cycleCells, const TrackView& view,
                                std::int32_t rowTop)
{
    const std::int32_t left = CellLeft(view, run.firstCell);
    const std::int32_t width = RunEnd(run, view) - left;
    const std::int32_t top = rowTop + kPaintTop;
    const std::int32_t bottom = top + kPaintHeight;
    std::vector<PixelRect> marks{{left, top, width, 1}, {left, bottom, width, 1}, FullHeightLine(left, top)};
    for (std::int64_t cell = SecondCycle(run, cycleCells, view); cell <= run.lastCell; cell += cycleCells) {
        const std::int32_t x = CellLeft(view, static_cast<std::int32_t>(cell));
        marks.push_back({x, top, 1, kTickHeight});
        marks.push_back({x, bottom + 1 - kTickHeight, 1, kTickHeight});
    }
    marks.push_back(FullHeightLine(EndLineLeft(run, cycleCells, view), top));
    return marks;
}

} // namespace sprout
