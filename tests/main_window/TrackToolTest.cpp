// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTool.h"

#include <gmock/gmock.h>

#include "main_window/CanvasFixture.h"
#include "main_window/rules/TrackPointer.h"
#include "support/Flags.h"

namespace sprout {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class TrackToolTest : public CanvasFixture {};

// At the left edge of cell c the pointer is on c.

TEST_F(TrackToolTest, TheCellUnderThePointerIsRounded)
{
    MoveTo(InRow(1, 1));
    EXPECT_EQ(cellText, "1");
    MoveTo(InRow(2, 1));
    EXPECT_EQ(cellText, "2");
}

TEST_F(TrackToolTest, ShowsHintCellAndCursorOverATrack)
{
    MoveTo(InRow(CellX(9), 2));
    EXPECT_EQ(statusLbl.text().toStdString(), kTracksHint.English());
    EXPECT_EQ(cellText, "9");
    EXPECT_TRUE(IsShown("CellCursor"));
    EXPECT_EQ(Part("CellCursor").geometry(), QRect(CellX(9), RowY(2) + 7, 3, 32));
    EXPECT_EQ(ColourAt(Pic(), CellX(9) + 1, RowY(2) + 20), QColor(0x80, 0x80, 0xFF));
    MoveTo(InRow(CellX(10), 2));
    EXPECT_EQ(ColourAt(Pic(), CellX(10) + 1, RowY(2) + 20), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(Pic().cursor().shape(), Qt::BitmapCursor);
}

TEST_F(TrackToolTest, ShowsThePlayToolOnTheTimeBandAndNothingBesideTheTracks)
{
    MoveTo(InRow(CellX(9), 2));
    const auto picture = [this] { return Pic().cursor().pixmap().toImage(); };
    const QImage brush = picture();
    MoveTo(QPoint(CellX(17), 5));
    EXPECT_EQ(statusLbl.text().toStdString(), kTimeBandHint.English());
    EXPECT_EQ(cellText, "17");
    EXPECT_FALSE(IsShown("CellCursor"));
    const QImage playTool = picture();
    EXPECT_NE(playTool, brush);
    MoveTo(InRow(CellX(9), 4));
    EXPECT_EQ(statusLbl.text(), QString());
    EXPECT_EQ(cellText, "");
    EXPECT_EQ(Pic().cursor().shape(), Qt::ArrowCursor);
    canvas->SetCurrentTool(Tool::PlayTool);
    MoveTo(InRow(CellX(9), 1));
    EXPECT_EQ(picture(), playTool);
    canvas->SetCurrentTool(Tool::Eraser);
    EXPECT_NE(picture(), playTool);
    EXPECT_NE(picture(), brush);
}

TEST_F(TrackToolTest, ThePointerThatLeavesTakesCursorAndCellAlong)
{
    MoveTo(InRow(CellX(9), 2));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&Pic(), &leave);
    EXPECT_FALSE(IsShown("CellCursor"));
    EXPECT_EQ(cellText, "");
    MoveTo(InRow(CellX(9), 2));
    canvas->DrawTracksAll();
    EXPECT_FALSE(IsShown("CellCursor"));
}

TEST_F(TrackToolTest, APressPaintsTheCellAndTellsWhatBecameStale)
{
    SetSongMixValid(Song(), true);
    SetTrackRenderValid(TrackOf(1), true);
    SetSongChanged(Song(), false);
    Press(InRow(CellX(20), 1));
    EXPECT_EQ(At(TrackOf(1).Painted, 20), 1);
    EXPECT_FALSE(TrackOf(1).TrackRenderValid);
    EXPECT_FALSE(Song().SongMixValid);
    EXPECT_TRUE(Song().SongChanged);
    EXPECT_EQ(titlePlays, 1);
    EXPECT_EQ(canvas->BrushedTrack(), 1);
    EXPECT_EQ(ColourAt(Pic(), CellX(20), RowY(1) + 20), QColor(Qt::black));
    Release(InRow(CellX(20), 1));
    EXPECT_EQ(canvas->BrushedTrack(), 0);
    MoveTo(InRow(CellX(30), 1));
    EXPECT_EQ(At(TrackOf(1).Painted, 30), 0);
}

TEST_F(TrackToolTest, AStrokeFromACellOfTheToolsValueLeavesTheSongUnchanged)
{
    PaintCells(1, 20, 20);
    SetSongMixValid(Song(), true);
    SetTrackRenderValid(TrackOf(1), true);
    SetSongChanged(Song(), false);
    Press(InRow(CellX(20), 1));
    EXPECT_EQ(titlePlays, 1);
    MoveTo(InRow(CellX(25), 1));
    EXPECT_THAT(Painted(1, 20, 25), Each(1));
    EXPECT_FALSE(TrackOf(1).TrackRenderValid);
    EXPECT_TRUE(Song().SongMixValid);
    EXPECT_FALSE(Song().SongChanged);
}

TEST_F(TrackToolTest, ABrushStrokeIsTakenBackButNotWhatWasPaintedBefore)
{
    PaintCells(1, 115, 116);
    Press(InRow(CellX(100), 1));
    MoveTo(InRow(CellX(120), 1));
    EXPECT_THAT(Painted(1, 100, 120), Each(1));
    MoveTo(InRow(CellX(110), 1));
    EXPECT_THAT(Painted(1, 100, 110), Each(1));
    EXPECT_THAT(Painted(1, 111, 114), Each(2));
    EXPECT_THAT(Painted(1, 115, 116), Each(1));
    EXPECT_THAT(Painted(1, 117, 120), Each(2));
    MoveTo(InRow(CellX(90), 1));
    MoveTo(InRow(CellX(100), 1));
    EXPECT_EQ(At(TrackOf(1).Painted, 100), 1);
}

TEST_F(TrackToolTest, AStrokeStaysOnItsRow)
{
    Press(InRow(CellX(10), 1));
    MoveTo(InRow(CellX(14), 2));
    EXPECT_THAT(Painted(1, 10, 14), Each(1));
    EXPECT_THAT(Painted(2, 10, 14), Each(0));
    EXPECT_EQ(Part("CellCursor").y(), RowY(1) + 7);
}

TEST_F(TrackToolTest, TheEraserTurnsNeverTouchedCellsInto2AndCountsThem)
{
    canvas->SetCurrentTool(Tool::Eraser);
    Press(InRow(CellX(10), 1));
    EXPECT_EQ(canvas->BrushedTrack(), 0);
    SetTrackRenderValid(TrackOf(1), true);
    MoveTo(InRow(CellX(5), 1));
    EXPECT_THAT(Painted(1, 5, 10), Each(2));
    EXPECT_FALSE(TrackOf(1).TrackRenderValid);
    MoveTo(InRow(CellX(9), 1));
    EXPECT_THAT(Painted(1, 5, 10), Each(2));
}

TEST_F(TrackToolTest, ADragBesideTheSurfaceGoesOnToTheSongsEnds)
{
    Scroll("TrackHScroll").setValue(1075);
    Press(InRow(CellX(1100, 1075), 1));
    MoveTo(InRow(kPicWidth + 300, 1)); // not a hit, cell 1375
    EXPECT_THAT(Painted(1, 1100, 1280), Each(1));
    EXPECT_EQ(cellText, "");
    Release(InRow(kPicWidth + 300, 1));
    Scroll("TrackHScroll").setValue(3);
    Press(InRow(CellX(10, 3), 2));
    MoveTo(InRow(-60, 2));
    EXPECT_THAT(Painted(2, 1, 10), Each(1));
}

TEST_F(TrackToolTest, PaintsAudioTracksToo)
{
    TrackOf(2).TrackType = 1;
    canvas->DrawTracksAll();
    Press(InRow(CellX(4), 2));
    MoveTo(InRow(CellX(8), 2));
    EXPECT_THAT(Painted(2, 4, 8), Each(1));
}

TEST_F(TrackToolTest, OtherButtonsPressNothingAndAnyReleaseEndsTheStroke)
{
    Press(InRow(CellX(10), 1), Qt::RightButton);
    Release(InRow(CellX(10), 1), Qt::RightButton);
    EXPECT_EQ(At(TrackOf(1).Painted, 10), 0);
    Press(InRow(CellX(10), 1));
    Release(InRow(CellX(10), 1), Qt::RightButton);
    MoveTo(InRow(CellX(20), 1));
    EXPECT_EQ(At(TrackOf(1).Painted, 20), 0);
}

TEST_F(TrackToolTest, ThePlayToolAndTheTimeBandPlay)
{
    Press(QPoint(CellX(7), 16));
    canvas->SetCurrentTool(Tool::Eraser);
    Press(QPoint(CellX(8), 3));
    canvas->SetCurrentTool(Tool::PlayTool);
    Press(QPoint(CellX(9), 3));
    Press(InRow(CellX(10), 2));
    MoveTo(InRow(CellX(20), 2));
    Press(InRow(CellX(10), 4)); // below the tracks
    EXPECT_THAT(asked, ElementsAre("PlaySongFrom 7", "PlaySongFrom 8", "PlaySongFrom 9", "PlayTrackFrom 2 10"));
    EXPECT_THAT(Painted(2, 1, 40), Each(0));
    EXPECT_EQ(titlePlays, 0);
}

} // namespace
} // namespace sprout
