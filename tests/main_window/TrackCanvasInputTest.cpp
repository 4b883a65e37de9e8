// SPDX-License-Identifier: GPL-3.0-or-later
// The canvas with mouse, wheel and keys.
#include <gmock/gmock.h>

#include <QWheelEvent>

#include "main_window/CanvasFixture.h"
#include "main_window/rules/TrackPointer.h"
#include "support/Flags.h"
#include "ui/ModalSteps.h"

namespace sprout {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class TrackCanvasInputTest : public CanvasFixture {
protected:
    void TurnWheel(QPoint eighths, Qt::KeyboardModifiers modifiers = {}) { TurnWheelOver(Pic(), eighths, modifiers); }

    static void TurnWheelOver(QWidget& part, QPoint eighths, Qt::KeyboardModifiers modifiers = {})
    {
        const QPointF at(5, 5);
        QWheelEvent turn(at, part.mapToGlobal(at), {}, eighths, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn); // an event sent by the program itself would not reach the parents
        qApp->notify(&part, &turn);
    }

    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&Pic(), key, modifiers); }
};

// At the left edge of cell c the pointer is on c.

TEST_F(TrackCanvasInputTest, TheCellUnderThePointerIsRounded)
{
    MoveTo(InRow(1, 1));
    EXPECT_EQ(cellText, "1");
    MoveTo(InRow(2, 1));
    EXPECT_EQ(cellText, "2");
}

TEST_F(TrackCanvasInputTest, ShowsHintCellAndCursorOverATrack)
{
    MoveTo(InRow(CellX(9), 2));
    EXPECT_EQ(statusLbl.text().toStdString(), kTracksHint);
    EXPECT_EQ(cellText, "9");
    EXPECT_TRUE(IsShown("CellCursor"));
    EXPECT_EQ(Part("CellCursor").geometry(), QRect(CellX(9), RowY(2) + 7, 3, 32));
    EXPECT_EQ(ColourAt(Pic(), CellX(9) + 1, RowY(2) + 20), QColor(0x80, 0x80, 0xFF));
    MoveTo(InRow(CellX(10), 2));
    EXPECT_EQ(ColourAt(Pic(), CellX(10) + 1, RowY(2) + 20), QColor(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(Pic().cursor().shape(), Qt::BitmapCursor);
}

TEST_F(TrackCanvasInputTest, ShowsThePlayToolOnTheTimeBandAndNothingBesideTheTracks)
{
    MoveTo(InRow(CellX(9), 2));
    const auto picture = [this] { return Pic().cursor().pixmap().toImage(); };
    const QImage brush = picture();
    MoveTo(QPoint(CellX(17), 5));
    EXPECT_EQ(statusLbl.text().toStdString(), kTimeBandHint);
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

TEST_F(TrackCanvasInputTest, ThePointerThatLeavesTakesCursorAndCellAlong)
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

TEST_F(TrackCanvasInputTest, APressPaintsTheCellAndTellsWhatBecameStale)
{
    EXPECT_EQ(canvas->CurrentTool(), Tool::Brush);
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

TEST_F(TrackCanvasInputTest, AStrokeFromACellOfTheToolsValueLeavesTheSongUnchanged)
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

TEST_F(TrackCanvasInputTest, ABrushStrokeIsTakenBackButNotWhatWasPaintedBefore)
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

TEST_F(TrackCanvasInputTest, AStrokeStaysOnItsRow)
{
    Press(InRow(CellX(10), 1));
    MoveTo(InRow(CellX(14), 2));
    EXPECT_THAT(Painted(1, 10, 14), Each(1));
    EXPECT_THAT(Painted(2, 10, 14), Each(0));
    EXPECT_EQ(Part("CellCursor").y(), RowY(1) + 7);
}

TEST_F(TrackCanvasInputTest, TheEraserTurnsNeverTouchedCellsInto2AndCountsThem)
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

TEST_F(TrackCanvasInputTest, ADragBesideTheSurfaceGoesOnToTheSongsEnds)
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

TEST_F(TrackCanvasInputTest, PaintsAudioTracksToo)
{
    TrackOf(2).TrackType = 1;
    canvas->DrawTracksAll();
    Press(InRow(CellX(4), 2));
    MoveTo(InRow(CellX(8), 2));
    EXPECT_THAT(Painted(2, 4, 8), Each(1));
}

TEST_F(TrackCanvasInputTest, OtherButtonsPressNothingAndAnyReleaseEndsTheStroke)
{
    Press(InRow(CellX(10), 1), Qt::RightButton);
    Release(InRow(CellX(10), 1), Qt::RightButton);
    EXPECT_EQ(At(TrackOf(1).Painted, 10), 0);
    Press(InRow(CellX(10), 1));
    Release(InRow(CellX(10), 1), Qt::RightButton);
    MoveTo(InRow(CellX(20), 1));
    EXPECT_EQ(At(TrackOf(1).Painted, 20), 0);
}

TEST_F(TrackCanvasInputTest, ThePlayToolAndTheTimeBandPlay)
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

TEST_F(TrackCanvasInputTest, TheWheelScrollsByRowsAndWithShiftSideways)
{
    SetTracks(20);
    TurnWheel({0, -240});
    EXPECT_EQ(canvas->View().FirstTrack, 3);
    TurnWheel({0, 120});
    EXPECT_EQ(canvas->View().FirstTrack, 2);
    TurnWheel({0, -120}, Qt::ShiftModifier);
    EXPECT_EQ(canvas->View().FirstCell, 9);
    TurnWheel({-120, 0});
    EXPECT_EQ(canvas->View().FirstCell, 17);
    EXPECT_EQ(canvas->View().FirstTrack, 2);
    for (int i = 0; i < 4; ++i) // a high-resolution wheel: one row takes four turns
        TurnWheel({0, -30});
    EXPECT_EQ(canvas->View().FirstTrack, 3);
}

TEST_F(TrackCanvasInputTest, TheWheelScrollsOverTheStripAndItsButtonsToo)
{
    SetTracks(20);
    TurnWheelOver(Strip(), {0, -120});
    EXPECT_EQ(canvas->View().FirstTrack, 2);
    for (const char* name : {"TrackPlayBtn", "TrackTuneBtn", "Label1"}) {
        Scroll("TrackVScroll").setValue(1);
        TurnWheelOver(Part(name), {0, -120});
        EXPECT_EQ(canvas->View().FirstTrack, 2) << name;
    }
}

TEST_F(TrackCanvasInputTest, ArrowKeysScrollAndTheSpaceBarPlays)
{
    SetTracks(20);
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    Key(Qt::Key_Up);
    EXPECT_EQ(canvas->View().FirstTrack, 2);
    Key(Qt::Key_Right);
    EXPECT_EQ(canvas->View().FirstCell, 9);
    Key(Qt::Key_Left);
    EXPECT_EQ(canvas->View().FirstCell, 1);
    Key(Qt::Key_PageDown);
    EXPECT_EQ(canvas->View().FirstTrack, 7);
    Key(Qt::Key_End);
    EXPECT_EQ(canvas->View().FirstCell, Scroll("TrackHScroll").maximum());
    Key(Qt::Key_Home);
    EXPECT_EQ(canvas->View().FirstCell, 1);
    EXPECT_THAT(asked, IsEmpty());
    Key(Qt::Key_Space);
    EXPECT_THAT(asked, ElementsAre("PlayOrStop"));
}

TEST_F(TrackCanvasInputTest, ASpaceBarHeldDownPlaysOnce)
{
    Key(Qt::Key_Space);
    RepeatKey(*canvas, Qt::Key_Space);
    EXPECT_THAT(asked, ElementsAre("PlayOrStop"));
}

TEST_F(TrackCanvasInputTest, EnterHeldDownPressesOnce)
{
    Pic().setFocus(Qt::TabFocusReason);
    Key(Qt::Key_Up, Qt::ControlModifier); // onto the time band
    Key(Qt::Key_Return);
    const std::size_t once = asked.size();
    EXPECT_GT(once, 0U);
    RepeatKey(*canvas, Qt::Key_Return);
    EXPECT_EQ(asked.size(), once);
}

TEST_F(TrackCanvasInputTest, KeysMoveTheCellCursorAndPaint)
{
    Pic().setFocus(Qt::TabFocusReason);
    Key(Qt::Key_Down, Qt::ControlModifier);
    Key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(Part("CellCursor").pos(), QPoint(CellX(2), RowY(2) + 7));
    EXPECT_EQ(cellText, "2");
    EXPECT_EQ(Pic().accessibleName(), QStringLiteral("Track 2, cell 2, empty"));
    Key(Qt::Key_Return);
    EXPECT_THAT(Painted(2, 1, 3), ElementsAre(0, 1, 0));
    EXPECT_EQ(Pic().accessibleName(), QStringLiteral("Track 2, cell 2, painted"));
    // A stroke from there, taken back by one cell.
    const auto both = Qt::ControlModifier | Qt::ShiftModifier;
    for (int i = 0; i < 4; ++i)
        QTest::keyPress(&Pic(), Qt::Key_Right, both);
    QTest::keyPress(&Pic(), Qt::Key_Left, both);
    EXPECT_THAT(Painted(2, 1, 7), ElementsAre(0, 1, 1, 1, 1, 2, 0));
    QTest::keyRelease(&Pic(), Qt::Key_Shift, Qt::ControlModifier);
    EXPECT_EQ(canvas->BrushedTrack(), 0);
    Key(Qt::Key_Up, Qt::ControlModifier);
    Key(Qt::Key_Up, Qt::ControlModifier);
    Key(Qt::Key_Return); // on the time band
    EXPECT_THAT(asked, ElementsAre("PlaySongFrom 5"));
}

TEST_F(TrackCanvasInputTest, ShiftAndPageMoveTheCellCursorByEightCells)
{
    Key(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(cellText, "9");
    Key(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(cellText, "17");
    EXPECT_EQ(Part("CellCursor").pos(), QPoint(CellX(17), RowY(1) + 7));
    Key(Qt::Key_PageUp, Qt::ShiftModifier);
    Key(Qt::Key_PageUp, Qt::ShiftModifier);
    Key(Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_EQ(cellText, "1");
    EXPECT_EQ(canvas->View().FirstTrack, 1);
}

TEST_F(TrackCanvasInputTest, TheCellCursorHasAnOutlineWhileTheTracksHaveTheFocus)
{
    Pic().setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(IsShown("CellOutline"));
    Key(Qt::Key_Right, Qt::ControlModifier);
    ASSERT_TRUE(IsShown("CellOutline"));
    EXPECT_EQ(Part("CellOutline").geometry(), Part("CellCursor").geometry().adjusted(-3, -3, 3, 3));
    Pic().clearFocus();
    EXPECT_FALSE(IsShown("CellOutline"));
    EXPECT_TRUE(IsShown("CellCursor"));
    Pic().setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(IsShown("CellOutline"));
    canvas->DrawTracksAll();
    EXPECT_FALSE(IsShown("CellOutline"));
}

TEST_F(TrackCanvasInputTest, TheKeysCellIsScrolledIntoView)
{
    SetTracks(20);
    for (int i = 0; i < 11; ++i)
        Key(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(canvas->View().FirstTrack, 7);
    for (int i = 0; i < 201; ++i)
        Key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(canvas->View().FirstCell, 1);
    EXPECT_TRUE(IsShown("CellCursor"));
    Scroll("TrackHScroll").setValue(600);
    Key(Qt::Key_Return);
    EXPECT_EQ(At(TrackOf(12).Painted, 202), 1);
}

TEST_F(TrackCanvasInputTest, EnterUsesTheToolOnTheLastRowWhereThatOfTheKeysIsGone)
{
    SetTracks(3);
    for (int i = 0; i < 2; ++i)
        Key(Qt::Key_Down, Qt::ControlModifier);
    SetTracks(2);
    Key(Qt::Key_Return);
    EXPECT_THAT(Painted(2, 1, 2), ElementsAre(1, 0));
}

TEST_F(TrackCanvasInputTest, KeysDoNothingInASongOfNoCells)
{
    Song().SongCells = 0;
    SetTracks(2);
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::ControlModifier | Qt::ShiftModifier})
        Key(Qt::Key_Right, modifiers);
    Key(Qt::Key_Return);
    EXPECT_THAT(TrackOf(1).Painted, ElementsAre(0));
    EXPECT_EQ(cellText, "");
    NewSong();
    canvas->DrawTracksAll();
    Key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(cellText, "2");
}

TEST_F(TrackCanvasInputTest, AStrokeOfTheKeysEndsWithTheFocus)
{
    Pic().setFocus(Qt::TabFocusReason);
    QTest::keyPress(&Pic(), Qt::Key_Down, Qt::ControlModifier);
    QTest::keyPress(&Pic(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NE(canvas->BrushedTrack(), 0);
    Strip().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(canvas->BrushedTrack(), 0);
}

TEST_F(TrackCanvasInputTest, TheFocusIsFramedWhenItCameByKey)
{
    const QColor without = ColourAt(Pic(), kPicWidth / 2, kPicHeight - 1);
    Strip().setFocus(Qt::MouseFocusReason);
    Pic().setFocus(Qt::TabFocusReason);
    EXPECT_NE(ColourAt(Pic(), kPicWidth / 2, kPicHeight - 1), without);
    Press(InRow(CellX(10), 1));
    EXPECT_EQ(ColourAt(Pic(), kPicWidth / 2, kPicHeight - 1), without);
}

} // namespace
} // namespace sprout
