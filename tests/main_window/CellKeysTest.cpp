// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/CellKeys.h"

#include <gmock/gmock.h>

#include "main_window/CanvasFixture.h"
#include "ui/ModalSteps.h"

namespace sprout {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class CellKeysTest : public CanvasFixture {
protected:
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&Pic(), key, modifiers); }
};

TEST_F(CellKeysTest, EnterHeldDownPressesOnce)
{
    Pic().setFocus(Qt::TabFocusReason);
    Key(Qt::Key_Up, Qt::ControlModifier); // onto the time band
    Key(Qt::Key_Return);
    const std::size_t once = asked.size();
    EXPECT_GT(once, 0U);
    RepeatKey(*canvas, Qt::Key_Return);
    EXPECT_EQ(asked.size(), once);
}

TEST_F(CellKeysTest, KeysMoveTheCellCursorAndPaint)
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

TEST_F(CellKeysTest, ShiftAndPageMoveTheCellCursorByEightCells)
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

TEST_F(CellKeysTest, TheKeysCellIsScrolledIntoView)
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

TEST_F(CellKeysTest, EnterUsesTheToolOnTheLastRowWhereThatOfTheKeysIsGone)
{
    SetTracks(3);
    for (int i = 0; i < 2; ++i)
        Key(Qt::Key_Down, Qt::ControlModifier);
    SetTracks(2);
    Key(Qt::Key_Return);
    EXPECT_THAT(Painted(2, 1, 2), ElementsAre(1, 0));
}

TEST_F(CellKeysTest, KeysDoNothingInASongOfNoCells)
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

TEST_F(CellKeysTest, AStrokeOfTheKeysEndsWithTheFocus)
{
    Pic().setFocus(Qt::TabFocusReason);
    QTest::keyPress(&Pic(), Qt::Key_Down, Qt::ControlModifier);
    QTest::keyPress(&Pic(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NE(canvas->BrushedTrack(), 0);
    Strip().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(canvas->BrushedTrack(), 0);
}

} // namespace
} // namespace sprout
