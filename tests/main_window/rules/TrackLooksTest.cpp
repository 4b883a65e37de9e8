// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TrackLooks.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

/// A song of one music track without paint, and a view of its first 100 cells.
class TrackLooksTest : public testing::Test {
protected:
    TrackLooksTest()
    {
        song.SongCells = 1280;
        song.TrackCount = 1;
        song.Tracks.assign(2, Track());
        At(song.Tracks, 1).Painted.assign(1281, 0);
        view.trackPicWidth = 300;
        view.trackPicHeight = view.titlePicHeight = 300;
    }

    std::int32_t& Cell(std::int32_t cell) { return At(At(song.Tracks, 1).Painted, cell); }
    RowLook Row() { return LookOfRow(song, 1, view); }

    SongState song;
    TrackView view;
};

TEST_F(TrackLooksTest, ARowLooksDifferentWithPaintInView)
{
    const RowLook before = Row();
    EXPECT_FALSE(before.painted);
    Cell(5) = 1;
    EXPECT_TRUE(Row().painted);
    EXPECT_EQ(Row().runs.size(), 1U);
    EXPECT_FALSE(Row() == before);
    Cell(5) = 2;
    EXPECT_TRUE(Row() == before) << "an erased cell looks as one that was never painted";
}

TEST_F(TrackLooksTest, PaintBesideTheViewCountsAsPaintButShowsNoRun)
{
    Cell(900) = 1;
    EXPECT_TRUE(Row().painted);
    EXPECT_TRUE(Row().runs.empty());
}

TEST_F(TrackLooksTest, AnAudioTrackHasItsOwnTile)
{
    EXPECT_EQ(Row().tile, TileNumber(false, 1));
    At(song.Tracks, 1).TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    EXPECT_EQ(Row().tile, 0);
    EXPECT_EQ(Row().trackType, 1);
}

TEST_F(TrackLooksTest, TheTimeBandLooksDifferentByTempoCellsAndPaint)
{
    const TopLook before = LookOfTop(song, view);
    Cell(5) = 1;
    EXPECT_FALSE(LookOfTop(song, view) == before);
    Cell(5) = 0;
    EXPECT_TRUE(LookOfTop(song, view) == before);
    ++song.Tempo;
    EXPECT_FALSE(LookOfTop(song, view) == before);
    --song.Tempo;
    --song.SongCells;
    EXPECT_FALSE(LookOfTop(song, view) == before);
}

} // namespace
} // namespace sprout
