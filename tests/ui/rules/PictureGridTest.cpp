// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/PictureGrid.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace sprout {
namespace {

/// 18 columns and five visible rows.
PictureGrid Tunes(std::int32_t count, std::int32_t topRow = 1)
{
    return {18, count, topRow, 200};
}

TEST(PlaceInGrid, CountsCellsOf40AndLiesFiveInside)
{
    EXPECT_EQ(PlaceInGrid(Tunes(40), 1), (GridPlace{5, 5}));
    EXPECT_EQ(PlaceInGrid(Tunes(40), 18), (GridPlace{685, 5}));
    EXPECT_EQ(PlaceInGrid(Tunes(40), 19), (GridPlace{5, 45}));
}

TEST(PlaceInGrid, TellsRowsAboveTheTopRowAndBelowTheSurfaceToo)
{
    EXPECT_EQ(PlaceInGrid(Tunes(400, 3), 1), (GridPlace{5, -75}));
    EXPECT_EQ(PlaceInGrid(Tunes(400, 3), 37), (GridPlace{5, 5}));
    EXPECT_EQ(PlaceInGrid(Tunes(400, 3), 20 * 18), (GridPlace{685, 685}));
}

TEST(IsInGridView, NeedsTheWholeHeightOfThePicture)
{
    PictureGrid grid = Tunes(400, 2);
    EXPECT_FALSE(IsInGridView(grid, 18));
    EXPECT_TRUE(IsInGridView(grid, 19));
    EXPECT_TRUE(IsInGridView(grid, 6 * 18));
    EXPECT_FALSE(IsInGridView(grid, 6 * 18 + 1));
    grid.heightPx = 197; // the last pixel line of the fifth row
    EXPECT_TRUE(IsInGridView(grid, 6 * 18));
    grid.heightPx = 196;
    EXPECT_FALSE(IsInGridView(grid, 6 * 18));
}

TEST(IsInGridView, IsFalseForPicturesThatAreNotThere)
{
    EXPECT_FALSE(IsInGridView(Tunes(3), 0));
    EXPECT_FALSE(IsInGridView(Tunes(3), 4));
}

TEST(HitTestGrid, TakesTheRightAndTheLowerEdgeIn)
{
    const PictureGrid grid = Tunes(40);
    EXPECT_EQ(HitTestGrid(grid, 5, 5), 1);
    EXPECT_EQ(HitTestGrid(grid, 37, 37), 1);
    EXPECT_EQ(HitTestGrid(grid, 38, 37), 0);
    EXPECT_EQ(HitTestGrid(grid, 37, 38), 0);
    EXPECT_EQ(HitTestGrid(grid, 4, 5), 0);
    EXPECT_EQ(HitTestGrid(grid, 5, 4), 0);
    EXPECT_EQ(HitTestGrid(grid, 45, 45), 20);
    EXPECT_EQ(HitTestGrid(grid, 717, 37), 18);
}

TEST(HitTestGrid, FindsNothingBesideTheGridAndBehindTheLastPicture)
{
    const PictureGrid grid = Tunes(20);
    EXPECT_EQ(HitTestGrid(grid, 18 * 40 + 10, 10), 0);
    EXPECT_EQ(HitTestGrid(grid, 90, 50), 0);
    EXPECT_EQ(HitTestGrid(grid, -35, 10), 0);
    EXPECT_EQ(HitTestGrid(Tunes(0), 10, 10), 0);
}

TEST(HitTestGrid, CountsPicturesOutOfViewToo)
{
    EXPECT_EQ(HitTestGrid(Tunes(400), 10, 5 * 40 + 10), 5 * 18 + 1);
    EXPECT_EQ(HitTestGrid(Tunes(400, 3), 10, -30), 18 + 1);
    EXPECT_EQ(HitTestGrid(Tunes(400, 3), 10, -130), 0);
}

TEST(GridScrollRange, IsDisabledAsLongAsAllRowsFitWithOneToSpare)
{
    EXPECT_EQ(GridScrollRange(Tunes(0)), (GridScroll{false, 1}));
    EXPECT_EQ(GridScrollRange(Tunes(18)), (GridScroll{false, 1}));
    EXPECT_EQ(GridScrollRange(Tunes(4 * 18)), (GridScroll{false, 1}));
    EXPECT_EQ(GridScrollRange(Tunes(4 * 18 + 1)), (GridScroll{true, 1}));
    EXPECT_EQ(GridScrollRange(Tunes(5 * 18)), (GridScroll{true, 1}));
    EXPECT_EQ(GridScrollRange(Tunes(5 * 18 + 1)), (GridScroll{true, 2}));
    EXPECT_EQ(GridScrollRange(Tunes(5000)), (GridScroll{true, 274}));
}

TEST(GridScrollRange, RoundsTheHeightDown)
{
    PictureGrid grid = Tunes(5 * 18);
    grid.heightPx = 199;
    EXPECT_EQ(GridScrollRange(grid), (GridScroll{true, 2}));
}

TEST(NeighbourInGrid, GoesToTheNextPictureAndToTheOneAboveOrBelow)
{
    const PictureGrid grid = Tunes(40);
    EXPECT_EQ(NeighbourInGrid(grid, 20, GridStep::Left), 19);
    EXPECT_EQ(NeighbourInGrid(grid, 20, GridStep::Right), 21);
    EXPECT_EQ(NeighbourInGrid(grid, 20, GridStep::Up), 2);
    EXPECT_EQ(NeighbourInGrid(grid, 20, GridStep::Down), 38);
    EXPECT_EQ(NeighbourInGrid(grid, 18, GridStep::Right), 19);
}

TEST(NeighbourInGrid, StaysWhereTheGridEnds)
{
    const PictureGrid grid = Tunes(40);
    EXPECT_EQ(NeighbourInGrid(grid, 1, GridStep::Left), 1);
    EXPECT_EQ(NeighbourInGrid(grid, 40, GridStep::Right), 40);
    EXPECT_EQ(NeighbourInGrid(grid, 18, GridStep::Up), 18);
    EXPECT_EQ(NeighbourInGrid(grid, 38, GridStep::Down), 38);
}

TEST(NeighbourInGrid, ReachesAShortLastRowFromAbove)
{
    EXPECT_EQ(NeighbourInGrid(Tunes(40), 30, GridStep::Down), 40);
}

TEST(NeighbourInGrid, MovesByThePageAndToTheEnds)
{
    const PictureGrid grid = Tunes(400, 1);
    EXPECT_EQ(NeighbourInGrid(grid, 3, GridStep::PageDown), 93);
    EXPECT_EQ(NeighbourInGrid(grid, 93, GridStep::PageUp), 3);
    EXPECT_EQ(NeighbourInGrid(grid, 39, GridStep::PageUp), 3);
    EXPECT_EQ(NeighbourInGrid(grid, 380, GridStep::PageDown), 400);
    EXPECT_EQ(NeighbourInGrid(grid, 93, GridStep::First), 1);
    EXPECT_EQ(NeighbourInGrid(grid, 93, GridStep::Last), 400);
}

TEST(NeighbourInGrid, BeginsAtTheFirstPictureWhereNoneIsChosen)
{
    for (const GridStep step : {GridStep::Left, GridStep::Down, GridStep::Last}) {
        EXPECT_EQ(NeighbourInGrid(Tunes(40), 0, step), 1);
        EXPECT_EQ(NeighbourInGrid(Tunes(40), -1, step), 1);
        EXPECT_EQ(NeighbourInGrid(Tunes(0), 0, step), 0);
    }
}

TEST(TopRowShowing, MovesAsLittleAsItCan)
{
    EXPECT_EQ(TopRowShowing(Tunes(400, 3), 1), 1);
    EXPECT_EQ(TopRowShowing(Tunes(400, 3), 19), 2);
    EXPECT_EQ(TopRowShowing(Tunes(400, 3), 3 * 18), 3);
    EXPECT_EQ(TopRowShowing(Tunes(400, 3), 7 * 18), 3);
    EXPECT_EQ(TopRowShowing(Tunes(400, 3), 7 * 18 + 1), 4);
    EXPECT_EQ(TopRowShowing(Tunes(400, 1), 400), 19);
    EXPECT_EQ(TopRowShowing(Tunes(3, 1), 3), 1);
    EXPECT_EQ(TopRowShowing(Tunes(0, 1), 0), 1);
}

TEST(TopRowShowing, AlwaysShowsThePicture)
{
    for (std::int32_t heightPx = 120; heightPx < 260; ++heightPx) {
        for (const std::int32_t index : {1, 18, 19, 200, 381, 400}) {
            PictureGrid grid{18, 400, 7, heightPx};
            grid.topRow = TopRowShowing(grid, index);
            ASSERT_TRUE(IsInGridView(grid, index)) << heightPx << " " << index;
        }
    }
}

TEST(FittingGridRows, ShowsAllPicturesWhereThereIsRoom)
{
    const auto rows = [](std::int32_t count, std::int32_t roomPx) {
        return FittingGridRows({.count = count, .columns = 12, .wantedRows = 8, .roomPx = roomPx, .fewestRows = 8});
    };
    EXPECT_EQ(rows(129, 900), 12);
    EXPECT_EQ(rows(132, 900), 12);
    EXPECT_EQ(rows(133, 900), 13);
    EXPECT_EQ(rows(129, 479), 11);
    EXPECT_EQ(rows(1000, 900), 22);
}

TEST(FittingGridRows, HasAtLeastTheWantedOnesWithRoomAndTheFewestWithout)
{
    const auto rows = [](std::int32_t count, std::int32_t roomPx) {
        return FittingGridRows({.count = count, .columns = 18, .wantedRows = 5, .roomPx = roomPx, .fewestRows = 2});
    };
    EXPECT_EQ(rows(0, 900), 5);
    EXPECT_EQ(rows(72, 900), 5);
    EXPECT_EQ(rows(73, 900), 6);
    EXPECT_EQ(rows(0, 170), 4);
    EXPECT_EQ(rows(1000, 30), 2);
}

TEST(GridMoveTarget, LeadsToThePlacesBeside)
{
    struct Case {
        std::int32_t selected;
        std::array<std::int32_t, 4> targets; // up, down, left, right
    };
    for (const Case& one : {Case{1, {0, 13, 0, 2}}, Case{12, {0, 24, 11, 13}}, Case{13, {1, 25, 12, 14}},
                            Case{18, {6, 30, 17, 19}}, Case{19, {7, 0, 18, 20}}, Case{30, {18, 0, 29, 0}}})
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(GridMoveTarget(static_cast<GridMove>(i), one.selected, 30, 12), one.targets[i])
                << one.selected << " " << i;
}

TEST(GridMoveTarget, The19thOf19InRowsOf18GoesUpAndNotDown)
{
    EXPECT_EQ(GridMoveTarget(GridMove::Up, 19, 19, 18), 1);
    EXPECT_EQ(GridMoveTarget(GridMove::Down, 19, 19, 18), 0);
    EXPECT_EQ(GridMoveTarget(GridMove::Up, 18, 19, 18), 0);
    EXPECT_EQ(GridMoveTarget(GridMove::Down, 1, 19, 18), 19);
    EXPECT_EQ(GridMoveTarget(GridMove::Down, 2, 19, 18), 0);
}

TEST(GridMoveTarget, IsNoneWithoutAChoice)
{
    for (const GridMove move : {GridMove::Up, GridMove::Down, GridMove::Left, GridMove::Right})
        for (const std::int32_t selected : {-1, 0, 41})
            EXPECT_EQ(GridMoveTarget(move, selected, 40, 18), 0);
}

} // namespace
} // namespace sprout
