// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "core/Song.h"

namespace sprout {

// The two surfaces of the track canvas, in logical pixels from their top left: the title strip and the painting
// surface, which share the rows. Rows and cells are numbered from 1, as in the song.

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

/// Top of a track's row, also of one that is not in view.
[[nodiscard]] std::int32_t RowTop(const TrackView& view, std::int32_t track);

/// Left edge of a cell, negative for cells before the view.
[[nodiscard]] std::int32_t CellLeft(const TrackView& view, std::int32_t cell);

/// Rows that fit, by the height of the title strip alone.
[[nodiscard]] std::int32_t VisibleRows(const TrackView& view);

/// True for the rows that are drawn. The last one may begin up to a row below the surface.
[[nodiscard]] bool RowIsVisible(const TrackView& view, std::int32_t track);

/// Cell under the x of a pointer. The division rounds, so the right half of a cell's last pixel is the next cell's.
[[nodiscard]] std::int32_t CellAt(const TrackView& view, std::int32_t x);

/// The last cell that reaches into the surface, also beyond the song's end.
[[nodiscard]] std::int32_t LastVisibleCell(const TrackView& view);

/// What lies under the pointer.
struct TrackHit {
    std::int32_t track = 0; ///< `kWholeSong` on the time band; without a hit it may be any number
    std::int32_t cell = 0;  ///< without a hit it may lie outside the song
    bool hit = false;
};

/// Finds track and cell at a point of the painting surface. A drag that leaves the surface goes on with the cell
/// computed here although there is no hit.
[[nodiscard]] TrackHit HitTestTrack(const TrackView& view, std::int32_t trackCount, std::int32_t songCells,
                                    std::int32_t x, std::int32_t y);

/// The track at a height of the title strip, 0 for none; the time band is none.
[[nodiscard]] std::int32_t TitleStripTrack(const TrackView& view, std::int32_t trackCount, std::int32_t y);

/// `view` with its first track within 1..`trackCount` and its first cell at 1 or behind.
[[nodiscard]] TrackView ClampedView(TrackView view, std::int32_t trackCount);

/// A scroll bar that begins at 1.
struct ScrollRange {
    bool enabled = true;
    std::int32_t maximum = 1;
    friend bool operator==(const ScrollRange&, const ScrollRange&) = default;
};

/// The vertical bar. A disabled one goes back to 1.
[[nodiscard]] ScrollRange TrackScrollRange(const TrackView& view, std::int32_t trackCount);

/// The horizontal bar: it ends ten cells behind the song.
[[nodiscard]] ScrollRange CellScrollRange(const TrackView& view, std::int32_t songCells);

/// Distance between the left edges of the two buttons that add a track.
inline constexpr std::int32_t kAddButtonsApart = 55;

/// Top of the buttons that add a track, below the last row.
[[nodiscard]] std::int32_t AddButtonsTop(const TrackView& view, std::int32_t trackCount);

/// Side of those buttons.
inline constexpr std::int32_t kAddButtonSide = 48;

/// The least scrolled `FirstTrack`, from that of the view on, with which the last row and those buttons are in view;
/// the last row alone where the surface is too low for both.
[[nodiscard]] std::int32_t FirstTrackForAdded(const TrackView& view, std::int32_t trackCount);

/// Breadth of the canvas's scroll bars.
inline constexpr std::int32_t kScrollBarBreadth = 18;

/// True where a canvas of this height shows a whole row above its scroll bar.
[[nodiscard]] bool CanvasShowsARow(std::int32_t canvasHeight);

/// Height of the meadow on the lower edge of the painting surface.
inline constexpr std::int32_t kMeadowHeight = 80;

/// Top of the meadow; it grows only where it stays clear of the rows.
[[nodiscard]] std::optional<std::int32_t> MeadowTop(const TrackView& view, std::int32_t trackCount);

/// Height of the hills behind the meadow.
inline constexpr std::int32_t kHillsHeight = 240;

/// Top of the hills, which rise only where they fill no more than two thirds of what the rows leave free.
[[nodiscard]] std::optional<std::int32_t> HillsTop(const TrackView& view, std::int32_t trackCount);

inline constexpr std::int32_t kMusicTiles = 10;
/// Which of the row tiles paints a track: 0 for audio, 1 to 10 for music by the track's number.
[[nodiscard]] std::int32_t TileNumber(bool isAudio, std::int32_t track);

} // namespace sprout
