// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "core/Song.h"

namespace sprout {

// The two surfaces of the track canvas, in logical pixels from their top left: the title strip and the painting
// surface, which share the rows. As in the song, rows and cells are numbered from 1.

inline constexpr std::int32_t kCellWidth = 3;
inline constexpr std::int32_t kRowHeight = 46;
inline constexpr std::int32_t kFirstRowTop = 20;
inline constexpr std::int32_t kTimeBandHeight = 17;
inline constexpr std::int32_t kPaintTop = 7; ///< of the painted area, below the row's top
inline constexpr std::int32_t kPaintHeight = 32;
inline constexpr std::int32_t kBackgroundTop = 2; ///< of the row's background, below the row's top
inline constexpr std::int32_t kBackgroundHeight = 42;

/// What is scrolled into view, and the sizes of the surfaces.
struct TrackView {
    std::int32_t FirstTrack = 1;    ///< in the top row
    std::int32_t FirstCell = 1;     ///< at the left edge
    std::int32_t trackPicWidth = 0; ///< of the painting surface
    std::int32_t trackPicHeight = 0;
    std::int32_t titlePicHeight = 0; ///< of the title strip
};

/// Top of a track's row, even if it is not in view.
[[nodiscard]] std::int32_t RowTop(const TrackView& view, std::int32_t track);

/// Left edge of a cell, negative for cells before the view.
[[nodiscard]] std::int32_t CellLeft(const TrackView& view, std::int32_t cell);

/// The number of rows that fit, by the height of the title strip alone.
[[nodiscard]] std::int32_t VisibleRows(const TrackView& view);

/// True for rows that are drawn. The last one may start up to one row below the surface.
[[nodiscard]] bool RowIsVisible(const TrackView& view, std::int32_t track);

/// The cell at the pointer's x. The division rounds, so the right half of a cell's last pixel belongs to the next cell.
[[nodiscard]] std::int32_t CellAt(const TrackView& view, std::int32_t x);

/// The last cell that reaches into the surface, even if it is beyond the song's end.
[[nodiscard]] std::int32_t LastVisibleCell(const TrackView& view);

/// What is under the pointer.
struct TrackHit {
    std::int32_t track = 0; ///< `kWholeSong` on the time band; any number without a hit
    std::int32_t cell = 0;  ///< may be outside the song without a hit
    bool hit = false;
};

/// Finds the track and cell at a point of the painting surface. A drag that leaves the surface continues with the cell
/// computed here, although there is no hit.
[[nodiscard]] TrackHit HitTestTrack(const TrackView& view, std::int32_t trackCount, std::int32_t songCells,
                                    std::int32_t x, std::int32_t y);

/// The track at a height of the title strip; 0 for none and for the time band.
[[nodiscard]] std::int32_t TitleStripTrack(const TrackView& view, std::int32_t trackCount, std::int32_t y);

/// `view` with its first track within 1..`trackCount` and its first cell at least 1.
[[nodiscard]] TrackView ClampedView(TrackView view, std::int32_t trackCount);

/// A scroll bar that starts at 1.
struct ScrollRange {
    bool enabled = true;
    std::int32_t maximum = 1;
    friend bool operator==(const ScrollRange&, const ScrollRange&) = default;
};

/// The vertical bar. If disabled, it goes back to 1.
[[nodiscard]] ScrollRange TrackScrollRange(const TrackView& view, std::int32_t trackCount);

/// The horizontal bar: it ends ten cells after the song.
[[nodiscard]] ScrollRange CellScrollRange(const TrackView& view, std::int32_t songCells);

/// Distance between the left edges of the two buttons that add a track.
inline constexpr std::int32_t kAddButtonsApart = 55;

/// Top of the buttons that add a track, below the last row.
[[nodiscard]] std::int32_t AddButtonsTop(const TrackView& view, std::int32_t trackCount);

/// Side of those buttons.
inline constexpr std::int32_t kAddButtonSide = 48;

/// The smallest `FirstTrack`, not below the view's, that shows the last row and those buttons; or only the last row if
/// the surface is too low for both.
[[nodiscard]] std::int32_t FirstTrackForAdded(const TrackView& view, std::int32_t trackCount);

/// Width of the canvas's scroll bars.
inline constexpr std::int32_t kScrollBarBreadth = 18;

/// True if a canvas of this height shows a whole row above its scroll bar.
[[nodiscard]] bool CanvasShowsARow(std::int32_t canvasHeight);

/// Height of the meadow at the lower edge of the painting surface.
inline constexpr std::int32_t kMeadowHeight = 80;

/// Top of the meadow; it is drawn only if it stays clear of the rows.
[[nodiscard]] std::optional<std::int32_t> MeadowTop(const TrackView& view, std::int32_t trackCount);

/// Height of the hills behind the meadow.
inline constexpr std::int32_t kHillsHeight = 240;

/// Top of the hills; they are drawn only if they fill at most two thirds of the space below the rows.
[[nodiscard]] std::optional<std::int32_t> HillsTop(const TrackView& view, std::int32_t trackCount);

inline constexpr std::int32_t kMusicTiles = 10;
/// Which row tile paints a track: 0 for audio, 1 to 10 for music by the track's number.
[[nodiscard]] std::int32_t TileNumber(bool isAudio, std::int32_t track);

} // namespace sprout
