// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/PictureGrid.h"

#include <algorithm>
#include <array>

#include "base/Picture.h"

namespace sprout {

namespace {

/// Rows are counted from 1.
std::int32_t GridRowOf(const PictureGrid& grid, std::int32_t index)
{
    return (index - 1) / grid.columns + 1;
}

std::int32_t GridRowCount(const PictureGrid& grid)
{
    return (grid.count + grid.columns - 1) / grid.columns;
}

/// Rows that are visible at once, at least one.
std::int32_t GridRowsInView(const PictureGrid& grid)
{
    return std::max((grid.heightPx - kGridInset - kPictureSide) / kGridCell + 1, 1);
}

/// The cell at a position on one axis, from 0; -1 between the pictures.
std::int32_t GridCellAt(std::int32_t place)
{
    const std::int32_t inside = place - kGridInset;
    if (inside < 0 || inside % kGridCell > kPictureSide)
        return -1;
    return inside / kGridCell;
}

} // namespace

GridPlace PlaceInGrid(const PictureGrid& grid, std::int32_t index)
{
    const std::int32_t column = (index - 1) % grid.columns;
    return {column * kGridCell + kGridInset, (GridRowOf(grid, index) - grid.topRow) * kGridCell + kGridInset};
}

bool IsInGridView(const PictureGrid& grid, std::int32_t index)
{
    if (index < 1 || index > grid.count)
        return false;
    const std::int32_t top = PlaceInGrid(grid, index).y;
    return top >= 0 && top + kPictureSide <= grid.heightPx;
}

std::int32_t HitTestGrid(const PictureGrid& grid, std::int32_t x, std::int32_t y)
{
    // Rows above the surface differ from visible ones only by their number, so counting starts at the first row.
    const std::int32_t row = GridCellAt(y + (grid.topRow - 1) * kGridCell);
    const std::int32_t column = GridCellAt(x);
    if (row < 0 || column < 0 || column >= grid.columns)
        return 0;
    const std::int32_t index = row * grid.columns + column + 1;
    return index <= grid.count ? index : 0;
}

GridScroll GridScrollRange(const PictureGrid& grid)
{
    const std::int32_t most = GridRowCount(grid) - (grid.heightPx / kGridCell - 1);
    return most >= 1 ? GridScroll{true, most} : GridScroll{};
}

std::int32_t NeighbourInGrid(const PictureGrid& grid, std::int32_t index, GridStep step)
{
    if (grid.count < 1 || index < 1 || index > grid.count)
        return std::min(grid.count, 1);
    const std::int32_t page = GridRowsInView(grid) * grid.columns;
    const std::array moves{-1, 1, -grid.columns, grid.columns, -page, page, -grid.count, grid.count};
    const std::int32_t target = index + moves[static_cast<std::size_t>(step)];
    if (step == GridStep::First || step == GridStep::Last)
        return std::clamp(target, 1, grid.count);
    if (target < 1)
        return step == GridStep::PageUp ? (index - 1) % grid.columns + 1 : index;
    // The last row may be shorter than the one above it.
    if (target > grid.count)
        return GridRowOf(grid, index) < GridRowCount(grid) ? grid.count : index;
    return target;
}

std::int32_t TopRowShowing(const PictureGrid& grid, std::int32_t index)
{
    const std::int32_t row = GridRowOf(grid, std::clamp(index, 1, std::max(grid.count, 1)));
    const std::int32_t nearest = std::clamp(grid.topRow, row - GridRowsInView(grid) + 1, row);
    return std::clamp(nearest, 1, std::max(GridScrollRange(grid).maximum, 1));
}

std::int32_t FittingGridRows(const GridRoom& room)
{
    const std::int32_t filled = (room.count + room.columns - 1) / room.columns;
    const std::int32_t fit = room.roomPx / kGridCell;
    return std::max(std::min(std::max(filled + 1, room.wantedRows), fit), room.fewestRows);
}

std::int32_t GridMoveTarget(GridMove move, std::int32_t selected, std::int32_t count, std::int32_t columns)
{
    if (selected < 1 || selected > count)
        return 0;
    const std::array<std::int32_t, kGridMoveCaptions.size()> distances{-columns, columns, -1, 1};
    const std::int32_t target = selected + distances[static_cast<std::size_t>(move)];
    return target >= 1 && target <= count ? target : 0;
}

} // namespace sprout
