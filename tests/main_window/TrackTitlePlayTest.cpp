// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackTitlePlay.h"

#include "main_window/CommandsTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

class TrackTitlePlayTest : public CommandsTest {};

TEST_F(TrackTitlePlayTest, LooksForAHoverOnceASecondAtFirst)
{
    const TransportCommands fresh(nullptr);
    EXPECT_EQ(fresh.findChild<QTimer*>(QStringLiteral("TrackTitlePlayTimer"))->interval(), 1000);
    transport.SetWindow(*canvas, soundStatusLbl);
    EXPECT_TRUE(Timer("TrackTitlePlayTimer").isActive());
}

TEST_F(TrackTitlePlayTest, PlaysTheTuneUnderThePointerAgainAndAgain)
{
    HoverPicture(2);
    ASSERT_TRUE(canvas->TrackTuneBtnVisible());
    for (int i = 0; i < 2; ++i) {
        sound.calls.clear();
        Tick("TrackTitlePlayTimer");
        EXPECT_TRUE(SoundStarted());
        EXPECT_TRUE(song.Tracks[2].TrackTune.TuneWaveValid);
        EXPECT_EQ(FramesPlayed(), song.Tracks[2].TrackTune.TuneWave.Length);
        EXPECT_EQ(Status(), "Playing Star");
        EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 4000); // 16 steps of 0.1875 s plus a second
        EXPECT_TRUE(Timer("TrackTitlePlayTimer").isActive());
    }
    EXPECT_EQ(services.screen.processPicsShown, 1);
}

TEST_F(TrackTitlePlayTest, LooksAgainAfterASecondWhereTheTuneHasNoSound)
{
    SetTuneWaveValid(song.Tracks[2].TrackTune, true);
    HoverPicture(2);
    Tick("TrackTitlePlayTimer");
    EXPECT_FALSE(SoundStarted());
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 1000);
}

TEST_F(TrackTitlePlayTest, PlaysTheAudioUnderThePointer)
{
    MakeAudio(3, 44100);
    HoverPicture(3);
    ASSERT_TRUE(canvas->TrackAudioBtnVisible());
    Tick("TrackTitlePlayTimer");
    EXPECT_EQ(FramesPlayed(), 44100);
    EXPECT_EQ(Status(), "Playing Audio/Recording");
    EXPECT_EQ(play.PlayKind, PlayKind::Other);
    EXPECT_FALSE(play.PlayLooping);
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 2000);
    sound.calls.clear();
    song.Tracks[3].TrackAudio = WaveData();
    Tick("TrackTitlePlayTimer");
    EXPECT_FALSE(SoundStarted());
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 1000);
}

TEST_F(TrackTitlePlayTest, PlaysTheTuneOfABrushStroke)
{
    Tune& tune = song.Tracks[2].TrackTune;
    tune.TuneWave = CountingWave(500);
    SetTuneWaveValid(tune, true);
    QTest::mousePress(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
    EXPECT_TRUE(Timer("TrackTitlePlayTimer").isActive()); // the press starts it
    Tick("TrackTitlePlayTimer");
    EXPECT_EQ(FramesPlayed(), 500);
    EXPECT_EQ(Status(), "Playing Star");
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 4000);
    QTest::mouseRelease(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
    Tick("TrackTitlePlayTimer");
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 200);
}

TEST_F(TrackTitlePlayTest, AStrokeOnATuneThatIsNotRenderedStopsTheSound)
{
    PlayWaveStatus(CountingWave(100), Words::Text("Playing"), Loop::No);
    QTest::mousePress(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
    Tick("TrackTitlePlayTimer");
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_FALSE(song.Tracks[2].TrackTune.TuneWaveValid);
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 1000);
    QTest::mouseRelease(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
}

TEST_F(TrackTitlePlayTest, TheEraserMakesNoSound)
{
    canvas->SetCurrentTool(Tool::Eraser);
    song.Tracks[2].TrackTune.TuneWave = CountingWave(500);
    SetTuneWaveValid(song.Tracks[2].TrackTune, true);
    QTest::mousePress(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
    Tick("TrackTitlePlayTimer");
    EXPECT_FALSE(SoundStarted());
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 200);
    QTest::mouseRelease(&Part("TrackPic"), Qt::LeftButton, {}, CellPlace(2, 10));
}

TEST_F(TrackTitlePlayTest, WaitsForAHoverWithShortLooks)
{
    transport.EnableTrackTitlePlayTimer();
    Tick("TrackTitlePlayTimer");
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 200);
    EXPECT_TRUE(Timer("TrackTitlePlayTimer").isActive());
    EXPECT_FALSE(SoundStarted());
}

TEST_F(TrackTitlePlayTest, AHoverIsSilentWhileTheSongOrATrackPlays)
{
    Paint(1, 5, 40);
    transport.PlayAllBtn();
    HoverPicture(2);
    sound.calls.clear();
    Tick("TrackTitlePlayTimer");
    EXPECT_TRUE(sound.calls.empty());
    EXPECT_EQ(Timer("TrackTitlePlayTimer").interval(), 1000);
    EXPECT_EQ(play.PlayingTrack, kWholeSong);
}

TEST_F(TrackTitlePlayTest, ATickInsideATickDoesNothing)
{
    class TickingScreen : public FakeScreen {
    public:
        void ShowHourglass() override
        {
            ++shown;
            tick();
        }
        std::function<void()> tick;
        int shown = 0;
    } screen;
    screen.tick = [this] { Tick("TrackTitlePlayTimer"); };
    TheServices().screen = &screen;
    HoverPicture(2);
    Tick("TrackTitlePlayTimer");
    EXPECT_EQ(screen.shown, 1);
    EXPECT_EQ(sound.objects, 1);
}

TEST_F(TrackTitlePlayTest, EnablingTheHoverTimerLeavesARunningOneAsItIs)
{
    QTimer& timer = Timer("TrackTitlePlayTimer");
    timer.start(1000000);
    transport.EnableTrackTitlePlayTimer();
    EXPECT_EQ(timer.interval(), 1000000);
    timer.stop();
    transport.EnableTrackTitlePlayTimer();
    EXPECT_TRUE(timer.isActive());
}

} // namespace
} // namespace sprout
