// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TrackPointer.h"

#include <gtest/gtest.h>

#include "main_window/rules/CellValues.h"

namespace sprout {
namespace {

constexpr TrackView kUnscrolled{1, 1, 600, 300, 300};

TEST(PointerOverTracks, ShowsNothingWithoutAHit)
{
    const TrackPointer pointer = PointerOverTracks(kUnscrolled, {1, 5, false}, 0);
    EXPECT_EQ(pointer.image, PointerImage::Default);
    EXPECT_EQ(pointer.hint.English(), "");
    EXPECT_EQ(pointer.TrackMouPosLbl, "");
    EXPECT_FALSE(pointer.cellCursor);
}

TEST(PointerOverTracks, ShowsThePlayToolOnTheTimeBand)
{
    const TrackPointer pointer = PointerOverTracks(kUnscrolled, {kWholeSong, 17, true}, 0);
    EXPECT_EQ(pointer.image, PointerImage::PlayTool);
    EXPECT_EQ(pointer.hint.English(),
              "Main Song Track (all tracks mixed), use play tool and click on this to play song from there.");
    EXPECT_EQ(pointer.TrackMouPosLbl, "17");
    EXPECT_FALSE(pointer.cellCursor);
}

TEST(PointerOverTracks, ShowsToolCellAndCursorOnATrack)
{
    const TrackPointer pointer = PointerOverTracks(kUnscrolled, {2, 18, true}, 0);
    EXPECT_EQ(pointer.image, PointerImage::ToolCursor);
    EXPECT_EQ(pointer.hint.English(),
              "Music tracks, use the paint brush and eraser to draw here. Or use play tool to play");
    EXPECT_EQ(pointer.TrackMouPosLbl, "18");
    EXPECT_EQ(pointer.cellCursor, (CellCursor{51, 73, 0xC0FFFF}));
}

TEST(PointerOverTracks, MarksTheFirstCellOfEachEight)
{
    EXPECT_EQ(PointerOverTracks(kUnscrolled, {1, 17, true}, 0).cellCursor->colour, 0xFF8080);
    EXPECT_EQ(PointerOverTracks(kUnscrolled, {1, 1, true}, 0).cellCursor->colour, 0xFF8080);
    EXPECT_EQ(PointerOverTracks(kUnscrolled, {1, 16, true}, 0).cellCursor->colour, 0xC0FFFF);
}

TEST(PointerOverTracks, KeepsTheCursorOnTheRowOfTheDrag)
{
    EXPECT_EQ(PointerOverTracks(kUnscrolled, {2, 3, true}, 1).cellCursor->y, 27);
}

TEST(PointerOverTracks, HidesTheCursorOutsideTheSurface)
{
    EXPECT_TRUE(PointerOverTracks(kUnscrolled, {1, 201, true}, 0).cellCursor);
    EXPECT_FALSE(PointerOverTracks(kUnscrolled, {1, 202, true}, 0).cellCursor);
    EXPECT_FALSE(PointerOverTracks(kUnscrolled, {1, 0, true}, 0).cellCursor);
    EXPECT_FALSE(PointerOverTracks(kUnscrolled, {9, 5, true}, 0).cellCursor);
    EXPECT_FALSE(PointerOverTracks({3, 1, 600, 300, 300}, {2, 5, true}, 0).cellCursor);
}

TEST(CellInWords, SaysTrackCellAndWhetherItIsPainted)
{
    SongState song;
    song.TrackCount = 2;
    song.Tracks.resize(3);
    song.Tracks[2].Painted = {0, 0, kPaintedCell, kErasedCell};
    EXPECT_EQ(CellInWords(song, 2, 2).English(), "Track 2, cell 2, painted");
    EXPECT_EQ(CellInWords(song, 2, 3).English(), "Track 2, cell 3, empty");
    EXPECT_EQ(CellInWords(song, 2, 900).English(), "Track 2, cell 900, empty"); // beyond anything ever painted
    EXPECT_EQ(CellInWords(song, 0, 7).English(), "Time, cell 7");
}

} // namespace
} // namespace sprout
