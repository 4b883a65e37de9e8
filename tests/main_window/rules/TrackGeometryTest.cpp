// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TrackGeometry.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr std::int32_t kSongEnd = 1280;

TrackView ViewFrom(std::int32_t firstTrack = 1, std::int32_t firstCell = 1)
{
    return {firstTrack, firstCell, 600, 300, 300};
}

TEST(RowTop, CountsFromTheFirstTrackInView)
{
    EXPECT_EQ(RowTop(ViewFrom(), 1), 20);
    EXPECT_EQ(RowTop(ViewFrom(), 3), 112);
    EXPECT_EQ(RowTop(ViewFrom(3), 2), -26);
}

TEST(CanvasShowsARow, NeedsTheTimeBandARowAndTheScrollBar)
{
    EXPECT_TRUE(CanvasShowsARow(84));
    EXPECT_FALSE(CanvasShowsARow(83));
}

TEST(MeadowTop, StandsOnTheLowerEdgeWhereTheRowsLeaveRoom)
{
    // Four rows end at 204.
    EXPECT_EQ(MeadowTop(ViewFrom(), 0), 220);
    EXPECT_EQ(MeadowTop(ViewFrom(), 3), 220);
    EXPECT_EQ(MeadowTop(ViewFrom(), 4), std::nullopt);
    EXPECT_EQ(MeadowTop(ViewFrom(2), 4), 220);
    EXPECT_EQ(MeadowTop({1, 1, 600, 123, 123}, 0), std::nullopt);
    EXPECT_EQ(MeadowTop({1, 1, 600, 124, 124}, 0), 44);
}

TEST(HillsTop, RiseWhereTheyFillNoMoreThanTwoThirdsOfTheFreeRoom)
{
    EXPECT_EQ(HillsTop({1, 1, 600, 380, 380}, 0), 140);
    EXPECT_EQ(HillsTop({1, 1, 600, 379, 379}, 0), std::nullopt);
    EXPECT_EQ(HillsTop({1, 1, 600, 425, 425}, 1), std::nullopt);
    EXPECT_EQ(HillsTop({1, 1, 600, 426, 426}, 1), 186);
}

TEST(CellLeft, IsThreePixelsACell)
{
    EXPECT_EQ(CellLeft(ViewFrom(1, 10), 10), 0);
    EXPECT_EQ(CellLeft(ViewFrom(1, 10), 12), 6);
    EXPECT_EQ(CellLeft(ViewFrom(1, 10), 9), -3);
}

TEST(RowIsVisible, DrawsNothingAboveTheFirstTrack)
{
    EXPECT_FALSE(RowIsVisible(ViewFrom(3), 2));
    EXPECT_TRUE(RowIsVisible(ViewFrom(3), 3));
}

TEST(RowIsVisible, ReachesARowBelowTheTitleStrip)
{
    // 300 / 46 = 6.52 rounds to 7: rows 0 to 7, the last of which begins at 342.
    EXPECT_EQ(VisibleRows(ViewFrom()), 7);
    EXPECT_TRUE(RowIsVisible(ViewFrom(), 8));
    EXPECT_FALSE(RowIsVisible(ViewFrom(), 9));
}

TEST(RowIsVisible, LeavesThePaintingSurfaceOutOfAccount)
{
    TrackView view = ViewFrom();
    view.trackPicHeight = 50;
    EXPECT_TRUE(RowIsVisible(view, 8));
}

TEST(CellAt, RoundsSoThatThePointerIsEarlyInTheNextCell)
{
    EXPECT_EQ(CellAt(ViewFrom(), 1), 1);
    EXPECT_EQ(CellAt(ViewFrom(), 2), 2);
    EXPECT_EQ(CellAt(ViewFrom(), 4), 2);
    EXPECT_EQ(CellAt(ViewFrom(1, 100), -2), 99);
}

TEST(HitTestTrack, FindsTheTimeBandAtHeights0To16)
{
    for (const std::int32_t y : {0, 16}) {
        const TrackHit hit = HitTestTrack(ViewFrom(), 2, kSongEnd, 30, y);
        EXPECT_TRUE(hit.hit);
        EXPECT_EQ(hit.track, kWholeSong);
        EXPECT_EQ(hit.cell, 11);
    }
    EXPECT_FALSE(HitTestTrack(ViewFrom(), 2, kSongEnd, 30, 17).hit);
    EXPECT_FALSE(HitTestTrack(ViewFrom(), 2, kSongEnd, 30, -1).hit);
}

TEST(HitTestTrack, FindsTheRowUnderThePointer)
{
    EXPECT_EQ(HitTestTrack(ViewFrom(), 2, kSongEnd, 0, 20).track, 1);
    EXPECT_EQ(HitTestTrack(ViewFrom(), 2, kSongEnd, 0, 65).track, 1);
    EXPECT_EQ(HitTestTrack(ViewFrom(), 2, kSongEnd, 0, 66).track, 2);
    EXPECT_TRUE(HitTestTrack(ViewFrom(), 2, kSongEnd, 0, 111).hit);
    EXPECT_FALSE(HitTestTrack(ViewFrom(), 2, kSongEnd, 0, 112).hit);
}

TEST(HitTestTrack, TakesTheGapBelowTheBandForTheTrackScrolledOutAbove)
{
    const TrackHit hit = HitTestTrack(ViewFrom(3), 5, kSongEnd, 0, 18);
    EXPECT_TRUE(hit.hit);
    EXPECT_EQ(hit.track, 2);
}

TEST(HitTestTrack, EndsAtTheSurfacesHeightInWholeAndBrokenRows)
{
    TrackView view = ViewFrom();
    view.trackPicHeight = 92; // exactly two rows: the row with index 2 can still be hit
    EXPECT_TRUE(HitTestTrack(view, 9, kSongEnd, 0, 20 + 2 * 46).hit);
    EXPECT_FALSE(HitTestTrack(view, 9, kSongEnd, 0, 20 + 3 * 46).hit);
    view.trackPicHeight = 91; // 1.98 rows
    EXPECT_FALSE(HitTestTrack(view, 9, kSongEnd, 0, 20 + 2 * 46).hit);
}

TEST(HitTestTrack, MissesCellsBesideTheSurfaceButComputesThem)
{
    const TrackHit left = HitTestTrack(ViewFrom(1, 50), 2, kSongEnd, -9, 30);
    EXPECT_FALSE(left.hit);
    EXPECT_EQ(left.cell, 47);
    const TrackHit right = HitTestTrack(ViewFrom(1, 50), 2, kSongEnd, 603, 30);
    EXPECT_FALSE(right.hit);
    EXPECT_EQ(right.cell, 251);
    EXPECT_TRUE(HitTestTrack(ViewFrom(1, 50), 2, kSongEnd, 600, 30).hit);
}

TEST(HitTestTrack, MissesCellsBehindTheSong)
{
    EXPECT_TRUE(HitTestTrack(ViewFrom(1, 1200), 2, kSongEnd, 240, 30).hit);
    EXPECT_FALSE(HitTestTrack(ViewFrom(1, 1200), 2, kSongEnd, 243, 30).hit);
    EXPECT_FALSE(HitTestTrack(ViewFrom(1, 1200), 2, kSongEnd, 243, 5).hit);
}

TEST(TitleStripTrack, FindsTheTrackAndNoneOnTheTimeBand)
{
    EXPECT_EQ(TitleStripTrack(ViewFrom(), 2, 5), 0);
    EXPECT_EQ(TitleStripTrack(ViewFrom(), 2, 70), 2);
    EXPECT_EQ(TitleStripTrack(ViewFrom(), 2, 120), 0);
    // Beyond the song's last cell the strip still has its tracks.
    EXPECT_EQ(TitleStripTrack(ViewFrom(1, 1280), 2, 25), 1);
}

TEST(ClampedView, KeepsTheFirstTrackAmongTheTracks)
{
    EXPECT_EQ(ClampedView(ViewFrom(5, -2), 3).FirstTrack, 3);
    EXPECT_EQ(ClampedView(ViewFrom(0, -2), 3).FirstTrack, 1);
    EXPECT_EQ(ClampedView(ViewFrom(5, -2), 3).FirstCell, 1);
    EXPECT_EQ(ClampedView(ViewFrom(5), 0).FirstTrack, 1);
}

TEST(TrackScrollRange, IsDisabledAsLongAsTheTracksFit)
{
    // floor(280 / 46) - 3 = 3 rows.
    EXPECT_EQ(TrackScrollRange(ViewFrom(), 4), (ScrollRange{false, 1}));
    EXPECT_EQ(TrackScrollRange(ViewFrom(), 5), (ScrollRange{true, 2}));
}

TEST(CellScrollRange, EndsTenCellsBehindTheSong)
{
    EXPECT_EQ(CellScrollRange(ViewFrom(), kSongEnd), (ScrollRange{true, 1090}));
    TrackView wide = ViewFrom();
    wide.trackPicWidth = 6000;
    EXPECT_EQ(CellScrollRange(wide, kSongEnd), (ScrollRange{true, 2}));
}

TEST(AddButtonsTop, FollowsTheLastRow)
{
    EXPECT_EQ(AddButtonsTop(ViewFrom(), 2), 122);
    EXPECT_EQ(AddButtonsTop(ViewFrom(2), 2), 76);
}

TEST(FirstTrackForAdded, ScrollsNoFurtherThanTheButtonsBelowTheLastRowNeed)
{
    TrackView view = ViewFrom();
    view.titlePicHeight = view.trackPicHeight = 300;
    EXPECT_EQ(AddButtonsTop(view, 4) + kAddButtonSide, 262);
    EXPECT_EQ(FirstTrackForAdded(view, 4), 1);
    EXPECT_EQ(FirstTrackForAdded(view, 5), 2);
    EXPECT_EQ(FirstTrackForAdded(view, 12), 9);
    view.FirstTrack = 10; // a larger value than needed stays
    EXPECT_EQ(FirstTrackForAdded(view, 12), 9);
}

TEST(FirstTrackForAdded, KeepsTheLastRowInView)
{
    TrackView low = ViewFrom();
    low.titlePicHeight = low.trackPicHeight = 100;
    EXPECT_EQ(FirstTrackForAdded(low, 6), 6);
}

TEST(TileNumber, GoesRoundByTheTracksNumber)
{
    EXPECT_EQ(TileNumber(false, 1), 2);
    EXPECT_EQ(TileNumber(false, 9), 10);
    EXPECT_EQ(TileNumber(false, 10), 1);
    EXPECT_EQ(TileNumber(false, 11), 2);
    EXPECT_EQ(TileNumber(true, 11), 0);
}

} // namespace
} // namespace sprout
