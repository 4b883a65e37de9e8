// SPDX-License-Identifier: GPL-3.0-or-later
// The timer that follows a play, and the markers that it moves.
#include <QScrollBar>

#include "core/Settings.h"
#include "main_window/CommandsTest.h"

namespace sprout {
namespace {

class PlayPositionTest : public CommandsTest {};

TEST_F(PlayPositionTest, MovesTheMarkOfTheSong)
{
    Paint(1, 5, 40);
    transport.PlayAllBtn();
    sound.place.Cursor = 8269 * 4;
    Tick("PlayPosTimer");
    EXPECT_TRUE(MarkerShown("PlayPosImg0"));
    EXPECT_FALSE(MarkerShown("PlayPosImg1"));
    EXPECT_EQ(Part("PlayPosImg0").x(), CellLeft(canvas->View(), 9));
    EXPECT_EQ(Part("PlayPosImg0").y(), 0);
    EXPECT_EQ(Part("PlayPosImg0").height(), Part("TrackPic").height());
}

TEST_F(PlayPositionTest, MovesTheMarkOfATrackByTheTempoOfItsStart)
{
    Paint(2, 5, 40);
    transport.PlayTrackFrom(2, 5);
    song.Tempo = 640;
    sound.place.Cursor = 8269 * 4;
    Tick("PlayPosTimer");
    EXPECT_FALSE(MarkerShown("PlayPosImg0"));
    EXPECT_TRUE(MarkerShown("PlayPosImg1"));
    EXPECT_EQ(Part("PlayPosImg1").pos(), QPoint(CellLeft(canvas->View(), 9), RowTop(canvas->View(), 2) + 7));
}

TEST_F(PlayPositionTest, TheViewGoesAlongWithTheMarkThatLeavesItAtTheRight)
{
    Paint(1, 5, 600);
    transport.PlayAllBtn();
    const std::int32_t lastInView = LastVisibleCell(canvas->View());
    sound.place.Cursor = 8269 * (lastInView - 5 - 1);
    Tick("PlayPosTimer");
    EXPECT_EQ(canvas->View().FirstCell, 1);
    sound.place.Cursor = 8269 * (lastInView + 3 - 5);
    Tick("PlayPosTimer");
    EXPECT_EQ(canvas->View().FirstCell, lastInView + 2);
    EXPECT_EQ(Part("PlayPosImg0").x(), CellLeft(canvas->View(), lastInView + 3));
    EXPECT_EQ(canvas->findChild<QScrollBar*>(QStringLiteral("TrackHScroll"))->value(), lastInView + 2);
}

TEST_F(PlayPositionTest, TheViewGoesToThePlaysStartOnEitherSide)
{
    Paint(1, 500, 600);
    transport.PlayAllBtn();
    EXPECT_EQ(canvas->View().FirstCell, 499);
    Paint(2, 5, 6);
    HoverPlayButton(2);
    transport.TrackPlayBtn();
    EXPECT_EQ(canvas->View().FirstCell, 4);
}

TEST_F(PlayPositionTest, AScrollSidewaysOrAStrokeEndsTheFollowingOfAPlay)
{
    Paint(1, 5, 600);
    auto& bar = *canvas->findChild<QScrollBar*>(QStringLiteral("TrackHScroll"));
    const std::function<void()> ends[] = {
        [&bar] { bar.setValue(9); },
        [this] {
            QTest::mousePress(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 20));
            QTest::mouseRelease(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 20));
        },
    };
    for (const auto& end : ends) {
        canvas->ShowFromStart();
        transport.PlayAllBtn();
        end();
        const std::int32_t first = canvas->View().FirstCell;
        sound.place.Cursor = 8269 * 400;
        Tick("PlayPosTimer");
        EXPECT_EQ(canvas->View().FirstCell, first);
        sound.place.Cursor = 0;
        transport.PlayStopBtn();
    }
    canvas->ShowFromStart();
    transport.PlayAllBtn(); // only for that play
    sound.place.Cursor = 8269 * 400;
    Tick("PlayPosTimer");
    EXPECT_EQ(canvas->View().FirstCell, 404);
}

TEST_F(PlayPositionTest, TheViewStaysWhileAMouseButtonIsHeldAndFollowsThen)
{
    Paint(1, 5, 600);
    transport.PlayAllBtn();
    sound.place.Cursor = 8269 * 400;
    QTest::mousePress(&statusLbl, Qt::LeftButton);
    Tick("PlayPosTimer");
    EXPECT_EQ(canvas->View().FirstCell, 1);
    QTest::mouseRelease(&statusLbl, Qt::LeftButton);
    Tick("PlayPosTimer");
    EXPECT_EQ(canvas->View().FirstCell, 404);
}

TEST_F(PlayPositionTest, ASettingSwitchesTheFollowingOff)
{
    PutSetting("MainWindow", "FollowPlay", "0");
    Paint(1, 500, 600);
    transport.PlayAllBtn();
    Tick("PlayPosTimer");
    EXPECT_EQ(canvas->View().FirstCell, 1);
}

TEST_F(PlayPositionTest, FindsTheEndOfASoundByItself)
{
    Paint(1, 5, 6);
    transport.PlayAllBtn();
    sound.place.Cursor = 8269 * 2;
    Tick("PlayPosTimer");
    sound.place.Playing = false;
    Tick("PlayPosTimer");
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(Part("PlayPosImg0").x(), CellLeft(canvas->View(), 7)); // not even briefly back at the start
    Tick("PlayPosTimer");
    EXPECT_FALSE(MarkerShown("PlayPosImg0"));
    EXPECT_EQ(Status(), "Done");
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_FALSE(Timer("PlayPosTimer").isActive());
}

TEST_F(PlayPositionTest, FollowsOtherSoundsToTheirEndWithoutAMark)
{
    PlayWaveStatus(CountingWave(100), Words::Text("Playing Star"), Loop::No);
    EXPECT_EQ(Status(), "Playing Star");
    sound.place.Cursor = 50;
    Tick("PlayPosTimer");
    EXPECT_EQ(play.PlayCursor, 51);
    EXPECT_FALSE(MarkerShown("PlayPosImg0"));
    sound.place.Playing = false;
    Tick("PlayPosTimer");
    Tick("PlayPosTimer");
    EXPECT_EQ(Status(), "Done");
}

TEST_F(PlayPositionTest, LeavesAPausedSoundAlone)
{
    Paint(1, 5, 40);
    transport.PlayAllBtn();
    Player().PlayPause();
    Tick("PlayPosTimer");
    EXPECT_EQ(play.PlayState, PlayState::Paused);
    EXPECT_FALSE(MarkerShown("PlayPosImg0"));
    EXPECT_TRUE(Timer("PlayPosTimer").isActive());
}

} // namespace
} // namespace sprout
