// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/EditedSound.h"

#include "main_window/TransportCommands.h"
#include "recording/AudioEditFixture.h"

namespace sprout {
namespace {

class EditedSoundTest : public AudioEditFixture {};

TEST_F(EditedSoundTest, SelectsTheSameFromRightToLeft)
{
    Drag(100, 200);
    EXPECT_EQ(Boxed(), "100-200");
    Drag(300, 400);
    EXPECT_EQ(Boxed(), "300-400");
    Drag(200, 100);
    EXPECT_EQ(Boxed(), "100-200");
}

TEST_F(EditedSoundTest, SelectsToTheEndsWhereTheMouseIsCloseToAnEdge)
{
    Drag(2, 400);
    EXPECT_EQ(Boxed(), "0-400");
    Drag(400, Right());
    EXPECT_EQ(Boxed(), "400-" + std::to_string(Right()));
    Drag(400, Right() + 300);
    EXPECT_EQ(Boxed(), "400-" + std::to_string(Right()));
}

TEST_F(EditedSoundTest, ShowsABandWhileTheMouseIsDown)
{
    QWidget& band = Part("SelectBandShp");
    QTest::mousePress(&Pic(), Qt::LeftButton, {}, {100, 30});
    EXPECT_EQ(band.geometry(), QRect(100, 1, 1, Pic().height() - 2));
    QTest::mouseMove(&Pic(), {60, 30});
    EXPECT_EQ(band.geometry(), QRect(60, 1, 40, Pic().height() - 2));
    EXPECT_TRUE(band.isVisible());
    QTest::mouseMove(&Pic(), {5000, 30});
    EXPECT_EQ(band.geometry(), QRect(100, 1, Pic().width() - 100, Pic().height() - 2));
    QTest::mouseRelease(&Pic(), Qt::LeftButton, {}, {60, 30});
    EXPECT_FALSE(band.isVisible());
}

TEST_F(EditedSoundTest, ZoomsInAndOut)
{
    Drag(100, 200);
    Click("ZoomInBtn");
    EXPECT_EQ(Boxed(), "120-240");
    Click("ZoomOutBtn");
    EXPECT_EQ(Boxed(), "100-200");
    Click("ZoomOutBtn");
    EXPECT_EQ(Boxed(), "100-200");
}

TEST_F(EditedSoundTest, NeverShowsFewerSamplesThanPixels)
{
    OpenWave(CountingWave(2000));
    QTest::keyClick(&Pic(), Qt::Key_Home);
    for (int i = 0; i < 10; ++i)
        Click("ZoomInBtn");
    // One pixel per sample: the arrow moves by one.
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(&Pic(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(Boxed(), "0-50");
}

TEST_F(EditedSoundTest, GoesOnWithShiftFromWhereTheMouseBegan)
{
    Drag(200, 100);
    QTest::keyClick(&Pic(), Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Boxed(), "120-200");
}

TEST_F(EditedSoundTest, SpeaksTheSelection)
{
    EXPECT_EQ(Pic().accessibleName(), QStringLiteral("Your recorded sound: Nothing is selected"));
    QTest::keyClick(&Pic(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Spoken(), QStringLiteral("0.0 to 0.4 seconds"));
}

TEST_F(EditedSoundTest, MovesThePlayMarkerWithItsOwnSoundAlone)
{
    const QWidget& marker = Part("PlayPosShp");
    play.PlayState = PlayState::Playing;
    play.PlayKind = PlayKind::Recording;
    play.PlayCursor = 8001;
    form.UpdatePlayPointer();
    EXPECT_NEAR(marker.x(), Right() / 2.0, 1);
    play.PlayKind = PlayKind::SongOrTrack;
    form.UpdatePlayPointer();
    EXPECT_EQ(marker.x(), -2);
    play.PlayKind = PlayKind::Recording;
    play.PlayCursor = 100000;
    form.UpdatePlayPointer();
    EXPECT_EQ(marker.x(), -2);
    play.PlayCursor = 8001;
    form.UpdatePlayPointer();
    play.PlayState = PlayState::Stopped;
    form.UpdatePlayPointer();
    EXPECT_EQ(marker.x(), -2);
}

TEST_F(EditedSoundTest, FollowsThePlayersTimer)
{
    TransportCommands transport(nullptr);
    auto* timer = transport.findChild<QTimer*>(QStringLiteral("PlayPosTimer"));
    const QWidget& marker = Part("PlayPosShp");
    Click("TestPlayBtn");
    sound.place = {8000, true};
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_NEAR(marker.x(), Right() / 2.0, 1);
    Player().StopPlay();
    QMetaObject::invokeMethod(timer, "timeout");
    EXPECT_EQ(marker.x(), -2);
}

TEST_F(EditedSoundTest, OpensAgainAsAtTheFirstTime)
{
    Bar().setValue(50);
    Drag(100, 200);
    Click("VolumeUpBtn");
    Click("OkBtn");
    EXPECT_TRUE(form.TrackWasChanged());
    Open(2);
    EXPECT_EQ(Bar().value(), 0);
    EXPECT_FALSE(form.Ok);
    EXPECT_EQ(Spoken(), QStringLiteral("Nothing is selected"));
    EXPECT_TRUE(Part("SelectOkLbl").isVisible());
    EXPECT_EQ(Part("PlayPosShp").x(), -2);
    Click("OkBtn");
    EXPECT_FALSE(form.TrackWasChanged());
}

} // namespace
} // namespace sprout
