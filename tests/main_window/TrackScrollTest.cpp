// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackScroll.h"

#include <gmock/gmock.h>

#include <QWheelEvent>

#include "main_window/CanvasFixture.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TrackScrollTest : public CanvasFixture {
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

TEST_F(TrackScrollTest, SetsTheScrollBarsByTheRowsAndCells)
{
    EXPECT_FALSE(Scroll("TrackVScroll").isEnabled());
    EXPECT_EQ(Scroll("TrackVScroll").minimum(), 1);
    EXPECT_EQ(Scroll("TrackHScroll").minimum(), 1);
    EXPECT_EQ(Scroll("TrackHScroll").maximum(), 1280 - 200 + 10);
    SetTracks(4); // six rows fit, but three of them are kept free
    EXPECT_FALSE(Scroll("TrackVScroll").isEnabled());
    SetTracks(5);
    EXPECT_TRUE(Scroll("TrackVScroll").isEnabled());
    EXPECT_EQ(Scroll("TrackVScroll").maximum(), 2);
    SetTracks(40);
    EXPECT_EQ(Scroll("TrackVScroll").maximum(), 37);
}

TEST_F(TrackScrollTest, GoesBackToTheFirstTrackWhereTheBarIsDisabled)
{
    SetTracks(40);
    Scroll("TrackVScroll").setValue(30);
    EXPECT_EQ(canvas->View().FirstTrack, 30);
    SetTracks(10);
    EXPECT_EQ(canvas->View().FirstTrack, 7);
    EXPECT_EQ(Scroll("TrackVScroll").value(), 7);
    SetTracks(2);
    EXPECT_EQ(canvas->View().FirstTrack, 1);
    EXPECT_EQ(Scroll("TrackVScroll").value(), 1);
}

TEST_F(TrackScrollTest, TheWheelScrollsByRowsAndWithShiftSideways)
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

TEST_F(TrackScrollTest, TheWheelScrollsOverTheStripAndItsButtonsToo)
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

TEST_F(TrackScrollTest, ArrowKeysScrollAndTheSpaceBarPlays)
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

} // namespace
} // namespace sprout
