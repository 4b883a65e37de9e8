// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/Stroke.h"

#include <gtest/gtest.h>

#include "support/Flags.h"

namespace sprout {
namespace {

class StrokeTest : public testing::Test {
protected:
    StrokeTest()
    {
        song.TrackCount = 2;
        song.Tracks.resize(3);
        for (Track& track : song.Tracks) {
            track.Painted.assign(kSongCells + 1, 0);
            SetTrackRenderValid(track, true);
        }
        SetSongMixValid(song, true);
    }

    bool Press(Tool tool, std::int32_t cell) { return stroke.Begin(song, tool, {2, cell, true}, 70); }
    bool Move(Tool tool, std::int32_t cell) { return stroke.MoveTo(song, tool, cell); }
    [[nodiscard]] std::int32_t Cell(std::int32_t cell) const { return At(song.Tracks[2].Painted, cell); }

    void ExpectCells(std::int32_t first, std::int32_t last, std::int32_t value) const
    {
        for (std::int32_t cell = first; cell <= last; ++cell)
            EXPECT_EQ(Cell(cell), value) << "cell " << cell;
    }

    SongState song;
    Stroke stroke;
};

TEST(ActionOfPress, PlaysTheSongOnTheTimeBandWithEveryTool)
{
    for (const Tool tool : {Tool::Brush, Tool::Eraser, Tool::PlayTool})
        EXPECT_EQ(ActionOfPress(tool, {kWholeSong, 7, true}), PressAction::PlaySongFrom);
}

TEST(ActionOfPress, PlaysATrackWithThePlayToolAndDrawsWithTheOthers)
{
    EXPECT_EQ(ActionOfPress(Tool::PlayTool, {1, 7, true}), PressAction::PlayTrackFrom);
    EXPECT_EQ(ActionOfPress(Tool::Brush, {1, 7, true}), PressAction::BeginStroke);
    EXPECT_EQ(ActionOfPress(Tool::Eraser, {1, 7, true}), PressAction::BeginStroke);
    EXPECT_EQ(ActionOfPress(Tool::Brush, {1, 7, false}), PressAction::Nothing);
}

TEST_F(StrokeTest, PressWritesTheToolAndMakesRenderMixAndSongStale)
{
    EXPECT_TRUE(Press(Tool::Brush, 100));
    EXPECT_EQ(Cell(100), 1);
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid);
    EXPECT_TRUE(song.Tracks[1].TrackRenderValid);
    EXPECT_FALSE(song.SongMixValid);
    EXPECT_TRUE(song.SongChanged);
    EXPECT_TRUE(stroke.Dragging());
    EXPECT_EQ(stroke.DragTrack(), 2);
    EXPECT_EQ(stroke.DownY(), 70);
}

TEST_F(StrokeTest, PressOnACellOfTheToolsValueMarksNothing)
{
    At(song.Tracks[2].Painted, 100) = 1;
    EXPECT_FALSE(Press(Tool::Brush, 100));
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_FALSE(song.SongChanged);
    EXPECT_TRUE(stroke.Dragging());
}

TEST_F(StrokeTest, DragLeavesTheMarksOfThePressAlone)
{
    At(song.Tracks[2].Painted, 100) = 1;
    Press(Tool::Brush, 100);
    EXPECT_TRUE(Move(Tool::Brush, 105));
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid);
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_FALSE(song.SongChanged);
}

TEST_F(StrokeTest, BrushIsTakenBackAsThePointerGoesBack)
{
    Press(Tool::Brush, 100);
    Move(Tool::Brush, 120);
    ExpectCells(100, 120, 1);
    EXPECT_TRUE(Move(Tool::Brush, 110));
    ExpectCells(100, 110, 1);
    ExpectCells(111, 120, 2);
    EXPECT_EQ(Cell(121), 0);
}

TEST_F(StrokeTest, BrushTakesBackToTheLeftAsWell)
{
    Press(Tool::Brush, 100);
    Move(Tool::Brush, 80);
    Move(Tool::Brush, 90);
    ExpectCells(80, 89, 2);
    ExpectCells(90, 100, 1);
}

TEST_F(StrokeTest, WhatWasPaintedBeforeTheStrokeStaysPainted)
{
    for (std::int32_t cell = 112; cell <= 115; ++cell)
        At(song.Tracks[2].Painted, cell) = 1;
    At(song.Tracks[2].Painted, 118) = 2;
    Press(Tool::Brush, 100);
    Move(Tool::Brush, 120);
    Move(Tool::Brush, 110);
    ExpectCells(112, 115, 1);
    EXPECT_EQ(Cell(111), 2);
    EXPECT_EQ(Cell(118), 2);
}

TEST_F(StrokeTest, ThePressedCellIsNeverTakenBack)
{
    Press(Tool::Brush, 100);
    Move(Tool::Brush, 105);
    EXPECT_FALSE(Move(Tool::Brush, 100)); // back at the start nothing changes
    ExpectCells(100, 105, 1);
    Move(Tool::Brush, 99);
    EXPECT_EQ(Cell(100), 1);
}

TEST_F(StrokeTest, OnlyTheSideOfThePointerIsTakenBack)
{
    Press(Tool::Brush, 100);
    Move(Tool::Brush, 90);
    Move(Tool::Brush, 110);
    ExpectCells(90, 110, 1);
}

TEST_F(StrokeTest, TakingBackTurnsNeverTouchedCellsInto2)
{
    Press(Tool::Brush, 100);
    Move(Tool::Brush, 104);
    Move(Tool::Brush, 102);
    At(song.Tracks[2].Painted, 103) = 0; // as if it was never touched: 0 and 0
    SetTrackRenderValid(song.Tracks[2], true);
    EXPECT_TRUE(Move(Tool::Brush, 101));
    EXPECT_EQ(Cell(103), 2);
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid);
}

TEST_F(StrokeTest, EraserTurnsNeverTouchedCellsInto2AndCountsThem)
{
    Press(Tool::Eraser, 100);
    SetTrackRenderValid(song.Tracks[2], true);
    EXPECT_TRUE(Move(Tool::Eraser, 95));
    ExpectCells(95, 100, 2);
    EXPECT_FALSE(song.Tracks[2].TrackRenderValid);
    EXPECT_FALSE(Move(Tool::Eraser, 97));
    ExpectCells(95, 100, 2);
}

TEST_F(StrokeTest, CellsAreHeldToTheSongAndNotToTheView)
{
    Press(Tool::Brush, 3);
    Move(Tool::Brush, -40);
    ExpectCells(1, 3, 1);
    EXPECT_EQ(Cell(0), 0);
    stroke.End();
    Press(Tool::Eraser, 1275);
    Move(Tool::Eraser, 5000);
    ExpectCells(1275, 1280, 2);
}

TEST_F(StrokeTest, PaintsOnAudioTracksToo)
{
    song.Tracks[2].TrackType = 1;
    Press(Tool::Brush, 10);
    Move(Tool::Brush, 12);
    ExpectCells(10, 12, 1);
}

TEST_F(StrokeTest, NothingIsDrawnAfterTheReleaseWithThePlayToolOrOnALostTrack)
{
    Press(Tool::Brush, 10);
    EXPECT_FALSE(Move(Tool::PlayTool, 12));
    song.TrackCount = 1;
    EXPECT_FALSE(Move(Tool::Brush, 12));
    song.TrackCount = 2;
    stroke.End();
    EXPECT_FALSE(Move(Tool::Brush, 12));
    ExpectCells(11, 12, 0);
}

TEST_F(StrokeTest, ANewStrokeForgetsWhatTheLastOnePainted)
{
    Press(Tool::Brush, 100);
    Move(Tool::Brush, 110);
    stroke.End();
    Press(Tool::Brush, 100);
    Move(Tool::Brush, 110);
    Move(Tool::Brush, 105);
    ExpectCells(100, 110, 1);
}

} // namespace
} // namespace sprout
