// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/ThumbnailPlan.h"

#include <algorithm>
#include <cassert>

#include "main_window/rules/PaintedRuns.h"

namespace sprout {

namespace {

// In parts of the picture's side.
constexpr int kMarginPart = 14;
constexpr int kHighestRowPart = 5;
// In parts of the distance from row to row.
constexpr int kGapPart = 8;
constexpr int kInsetPart = 10;

/// All runs of a track.
std::vector<PaintedRun> AllRuns(const Track& track, std::int32_t songCells)
{
    TrackView wholeSong;
    wholeSong.trackPicWidth = songCells * kCellWidth;
    return VisibleRuns(track, songCells, wholeSong);
}

/// The cells that fill the width: up to the last painted one.
std::int32_t ShownCells(const std::vector<std::vector<PaintedRun>>& runs)
{
    std::int32_t cells = kThumbnailLeastCells;
    for (const std::vector<PaintedRun>& ofTrack : runs)
        if (!ofTrack.empty())
            cells = std::max(cells, ofTrack.back().lastCell);
    return cells;
}

/// The bars of a track; what has no pixel in between becomes one.
std::vector<ThumbnailBar> BarsOf(const std::vector<PaintedRun>& runs, const ThumbnailPlan& plan, std::int32_t cells)
{
    const auto edge = [&](std::int32_t cellsBefore) {
        return plan.left + static_cast<int>(std::int64_t{cellsBefore} * (plan.right - plan.left) / cells);
    };
    std::vector<ThumbnailBar> bars;
    for (const PaintedRun& run : runs) {
        const int left = edge(run.firstCell - 1);
        const int right = std::max(edge(run.lastCell), left + 1);
        if (!bars.empty() && left <= bars.back().right)
            bars.back().right = right;
        else
            bars.push_back({left, right});
    }
    return bars;
}

} // namespace

ThumbnailPlan PlanThumbnail(const SongState& paint, int side)
{
    assert(side >= kThumbnailSmallestSide);
    const std::int32_t tracks = std::clamp(paint.TrackCount, 1, kThumbnailTracks);
    const std::int32_t songCells = std::min(paint.SongCells, kSongCells);
    ThumbnailPlan plan;
    const int margin = std::max(side / kMarginPart, 1);
    plan.left = margin;
    plan.right = side - margin;
    const int pitch = std::clamp((side - 2 * margin) / tracks, 1, side / kHighestRowPart);
    plan.rowHeight = pitch < 3 ? pitch : pitch - std::max(pitch / kGapPart, 1);
    plan.barInset = plan.rowHeight / kInsetPart;

    std::vector<std::vector<PaintedRun>> runs;
    for (std::int32_t track = 1; track <= std::min(paint.TrackCount, tracks); ++track)
        runs.push_back(AllRuns(At(paint.Tracks, track), songCells));
    const std::int32_t cells = ShownCells(runs);
    const int gap = pitch - plan.rowHeight;
    const bool fills = tracks * (side / kHighestRowPart) >= side - 2 * margin;
    int top = fills ? (side - tracks * pitch + gap) / 2 : margin;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        plan.lanes.push_back({static_cast<std::int32_t>(i) + 1, top, BarsOf(runs[i], plan, cells)});
        top += pitch;
    }
    plan.meadowTop = top;
    return plan;
}

} // namespace sprout
