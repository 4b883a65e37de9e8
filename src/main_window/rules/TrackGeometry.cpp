// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TrackGeometry.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"

namespace sprout {

namespace {

constexpr std::int32_t kRowsAlwaysScrollable = 3;
constexpr std::int32_t kCellsBehindTheSong = 10;
constexpr std::int32_t kAddButtonsBelow = 30;
constexpr std::int32_t kMeadowBelowRows = 24;

std::int32_t RowTrackAt(const TrackView& view, std::int32_t y)
{
    return static_cast<std::int32_t>(std::floor(static_cast<double>(y - kFirstRowTop) / kRowHeight)) + view.FirstTrack;
}

bool IsTrackInReach(const TrackView& view, std::int32_t trackCount, std::int32_t track)
{
    const double rows = static_cast<double>(view.trackPicHeight) / kRowHeight;
    return track >= 1 && track <= trackCount && track - view.FirstTrack <= rows;
}

std::int32_t CellsAcross(const TrackView& view)
{
    return RoundHalfEven(static_cast<double>(view.trackPicWidth) / kCellWidth);
}

} // namespace

std::int32_t RowTop(const TrackView& view, std::int32_t track)
{
    return (track - view.FirstTrack) * kRowHeight + kFirstRowTop;
}

std::int32_t CellLeft(const TrackView& view, std::int32_t cell)
{
    return (cell - view.FirstCell) * kCellWidth;
}

std::int32_t VisibleRows(const TrackView& view)
{
    return RoundHalfEven(static_cast<double>(view.titlePicHeight) / kRowHeight);
}

bool RowIsVisible(const TrackView& view, std::int32_t track)
{
    const std::int32_t row = track - view.FirstTrack;
    return row >= 0 && row <= VisibleRows(view);
}

std::int32_t CellAt(const TrackView& view, std::int32_t x)
{
    return view.FirstCell + RoundHalfEven(static_cast<double>(x) / kCellWidth);
}

std::int32_t LastVisibleCell(const TrackView& view)
{
    return view.FirstCell + CellsAcross(view);
}

TrackHit HitTestTrack(const TrackView& view, std::int32_t trackCount, std::int32_t songCells, std::int32_t x,
                      std::int32_t y)
{
    TrackHit result;
    result.cell = CellAt(view, x);
    const bool onTimeBand = y >= 0 && y < kTimeBandHeight;
    result.track = onTimeBand ? kWholeSong : RowTrackAt(view, y);
    if (result.cell < view.FirstCell || result.cell > std::min(LastVisibleCell(view), songCells))
        return result;
    result.hit = onTimeBand || IsTrackInReach(view, trackCount, result.track);
    return result;
}

std::int32_t TitleStripTrack(const TrackView& view, std::int32_t trackCount, std::int32_t y)
{
    if (y >= 0 && y < kTimeBandHeight)
        return 0;
    const std::int32_t track = RowTrackAt(view, y);
    return IsTrackInReach(view, trackCount, track) ? track : 0;
}

TrackView ClampedView(TrackView view, std::int32_t trackCount)
{
    view.FirstTrack = std::clamp(view.FirstTrack, 1, std::max(trackCount, 1));
    view.FirstCell = std::max(view.FirstCell, 1);
    return view;
}

ScrollRange TrackScrollRange(const TrackView& view, std::int32_t trackCount)
{
    const double rowsInView = std::floor(static_cast<double>(view.trackPicHeight - kFirstRowTop) / kRowHeight);
    const std::int32_t maximum = trackCount - (static_cast<std::int32_t>(rowsInView) - kRowsAlwaysScrollable);
    if (maximum <= 1)
        return {false, 1};
    return {true, maximum};
}

ScrollRange CellScrollRange(const TrackView& view, std::int32_t songCells)
{
    return {true, std::max(songCells - CellsAcross(view) + kCellsBehindTheSong, 2)};
}

std::int32_t FirstTrackForAdded(const TrackView& view, std::int32_t trackCount)
{
    const std::int32_t last = std::min(TrackScrollRange(view, trackCount).maximum, trackCount);
    TrackView scrolled = view;
    while (scrolled.FirstTrack < last && AddButtonsTop(scrolled, trackCount) + kAddButtonSide > view.titlePicHeight)
        ++scrolled.FirstTrack;
    return std::min(scrolled.FirstTrack, last);
}

std::int32_t AddButtonsTop(const TrackView& view, std::int32_t trackCount)
{
    return (trackCount - view.FirstTrack + 1) * kRowHeight + kAddButtonsBelow;
}

bool CanvasShowsARow(std::int32_t canvasHeight)
{
    return canvasHeight >= kFirstRowTop + kRowHeight + kScrollBarBreadth;
}

std::optional<std::int32_t> MeadowTop(const TrackView& view, std::int32_t trackCount)
{
    const std::int32_t top = view.trackPicHeight - kMeadowHeight;
    return top < RowTop(view, trackCount + 1) + kMeadowBelowRows ? std::nullopt : std::optional(top);
}

std::optional<std::int32_t> HillsTop(const TrackView& view, std::int32_t trackCount)
{
    const std::int32_t free = view.trackPicHeight - RowTop(view, trackCount + 1);
    return 2 * free < 3 * kHillsHeight ? std::nullopt : std::optional(view.trackPicHeight - kHillsHeight);
}

std::int32_t TileNumber(bool isAudio, std::int32_t track)
{
    return isAudio ? 0 : track % kMusicTiles + 1;
}

} // namespace sprout
