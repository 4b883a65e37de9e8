// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "base/Words.h"

namespace sprout {

/// Side of a grid cell in pixels, and how far inside it the 32 x 32 picture lies.
inline constexpr std::int32_t kGridCell = 40;
inline constexpr std::int32_t kGridInset = 5;

/// A grid of pictures, numbered from 1, row by row.
struct PictureGrid {
    std::int32_t columns = 1;
    std::int32_t count = 0;    ///< pictures
    std::int32_t topRow = 1;   ///< first row shown, from 1
    std::int32_t heightPx = 0; ///< of the surface
};

/// Top left of a picture.
struct GridPlace {
    std::int32_t x = 0;
    std::int32_t y = 0;
    friend bool operator==(const GridPlace&, const GridPlace&) = default;
};

/// A vertical scroll bar that begins at 1.
struct GridScroll {
    bool enabled = false;
    std::int32_t maximum = 1;
    friend bool operator==(const GridScroll&, const GridScroll&) = default;
};

/// Where a picture lies, even if it is out of view. index: from 1.
[[nodiscard]] GridPlace PlaceInGrid(const PictureGrid& grid, std::int32_t index);

/// True if the whole height of a picture is in view.
[[nodiscard]] bool IsInGridView(const PictureGrid& grid, std::int32_t index);

/// The last picture at a point, its right and lower edges included; 0 for none. Pictures out of view count too.
[[nodiscard]] std::int32_t HitTestGrid(const PictureGrid& grid, std::int32_t x, std::int32_t y);

/// The range of the scroll bar: the total rows minus those that fit, not counting the last one that fits.
[[nodiscard]] GridScroll GridScrollRange(const PictureGrid& grid);

/// What a grid needs space for.
struct GridRoom {
    std::int32_t count = 0; ///< pictures
    std::int32_t columns = 1;
    std::int32_t wantedRows = 1; ///< at least, if there is room
    std::int32_t roomPx = 0;     ///< height for the rows
    std::int32_t fewestRows = 1; ///< even without room
};

/// The rows that show all pictures, plus one: a grid that is filled to its last row can be scrolled.
[[nodiscard]] std::int32_t FittingGridRows(const GridRoom& room);

/// What the grid's menu does to the chosen picture, in menu order.
enum class GridMove : std::int32_t { Up = 0, Down = 1, Left = 2, Right = 3 };
inline constexpr std::array kGridMoveCaptions{Words::Later("Move Up"), Words::Later("Move Down"),
                                              Words::Later("Move Left"), Words::Later("Move Right")};

/// Where the chosen one of `count` pictures moves to; 0 if it cannot move.
[[nodiscard]] std::int32_t GridMoveTarget(GridMove move, std::int32_t selected, std::int32_t count,
                                          std::int32_t columns);

/// Where the keyboard can go from a picture.
enum class GridStep { Left, Right, Up, Down, PageUp, PageDown, First, Last };

/// The picture that a step from `index` leads to; `index` itself at the end of the grid. From 0 (none) it is the first
/// one. 0 if the grid is empty.
[[nodiscard]] std::int32_t NeighbourInGrid(const PictureGrid& grid, std::int32_t index, GridStep step);

/// The top row that brings a picture into view, as close to the current one as possible.
[[nodiscard]] std::int32_t TopRowShowing(const PictureGrid& grid, std::int32_t index);

} // namespace sprout
