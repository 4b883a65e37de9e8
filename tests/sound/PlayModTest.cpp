// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/PlayMod.h"

#include <gtest/gtest.h>

#include <new>

#include "base/Errors.h"
#include "sound/PlayTest.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using PlayModTest = PlayTest;

const std::string kDriverFailed =
    "There is an error initializing Sound Driver\n"
    "Check whether another application is using sound driver exclusively.\n"
    "If yes, put that off and then and then run this program again.\n\n"
    "Other wise, if this problem persists you may need to reinstall DirectX9 or Sound Card's Driver\r\n\r\n";

TEST_F(PlayModTest, SetSoundDriverStartsTheDriverWithoutADevice)
{
    EXPECT_EQ(play.SoundDriver, 1);
    EXPECT_TRUE(sound.calls.empty());
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(PlayModTest, SetSoundDriverOffReleasesTheDevice)
{
    PlayWaveStatus(CountingWave(1), Words::Text("Playing Star"), Loop::No);
    SetSoundDriver(false);
    EXPECT_EQ(play.SoundDriver, 0);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(sound.open, 0);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(PlayModTest, ADriverThatDoesNotStartIsToldWithoutATitle)
{
    for (const std::int32_t window : {0, -1}) {
        services.messages.shown.clear();
        display.mainWindow = window;
        SetSoundDriver(true);
        EXPECT_EQ(play.SoundDriver, window);
        ASSERT_EQ(services.messages.shown.size(), 1U);
        EXPECT_EQ(services.messages.shown[0].title, "");
        EXPECT_EQ(services.messages.shown[0].text, kDriverFailed);
    }
}

TEST_F(PlayModTest, ARunTimeErrorOfTheStartIsToldInTheSameMessage)
{
    display.mainWindow = -2;
    SetSoundDriver(true);
    EXPECT_EQ(play.SoundDriver, 0);
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, kDriverFailed + "There is no window.");
}

TEST_F(PlayModTest, WithoutADriverNoPlayCallDoesAnything)
{
    SetSoundDriver(false);
    play.PlayCursor = 5;
    PlayWaveStatus(CountingWave(1), Words::Text("Playing Star"), Loop::Yes);
    PlayWaveKind(CountingWave(1), PlayKind::Recording, Loop::Yes);
    PlayWaveTrack(CountingWave(1), 1, 9, Loop::Yes);
    PlayWaveDelayed(CountingWave(1), 0.75F, Words::Text("Playing Tune"), Loop::No);
    EXPECT_TRUE(sound.calls.empty());
    EXPECT_TRUE(play.PlayBuffer.empty());
    EXPECT_EQ(play.PlayKind, PlayKind::Other);
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(play.PlayStartPos, 0);
    EXPECT_FALSE(play.PlayLooping);
    EXPECT_EQ(display.status, "Ready");
    EXPECT_EQ(display.timersEnabled, 0);
}

TEST_F(PlayModTest, PlayWaveStatusPlaysWhatIsNoTrack)
{
    play.PlayKind = PlayKind::Recording;
    play.PlayingTrack = 3;
    PlayWaveStatus(CountingWave(10), Words::Text("Playing Star"), Loop::Yes);
    EXPECT_EQ(play.PlayKind, PlayKind::Other);
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(play.PlayOffset, 1);
    EXPECT_EQ(play.PlayLength, 10);
    EXPECT_TRUE(play.PlayLooping);
    EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
    EXPECT_EQ(display.status, "Playing Star");
    EXPECT_EQ(display.timersEnabled, 1);
}

TEST_F(PlayModTest, WhileTheTutorialPlaysTheMainWindowIsLeftAlone)
{
    play.DemoPlaying = true;
    PlayWaveStatus(CountingWave(10), Words::Text("Playing"), Loop::No);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(display.status, "Ready");
    EXPECT_EQ(display.timersEnabled, 0);
}

TEST_F(PlayModTest, NoOtherPlayHeedsTheTutorial)
{
    play.DemoPlaying = true;
    PlayWaveKind(CountingWave(10), PlayKind::Recording, Loop::No);
    EXPECT_EQ(display.status, "Playing Recorded");
    EXPECT_EQ(display.timersEnabled, 1);
    PlayWaveTrack(CountingWave(10), 4, 17, Loop::No);
    EXPECT_EQ(display.status, "Playing Track 4");
    EXPECT_EQ(display.timersEnabled, 2);
    PlayWaveDelayed(CountingWave(10), 0, Words::Text("Playing Tune"), Loop::No);
    EXPECT_EQ(display.status, "Playing Tune");
    EXPECT_EQ(display.timersEnabled, 3);
    EXPECT_EQ(display.tunesShown, 1);
}

TEST_F(PlayModTest, PlayWaveKindNamesARecording)
{
    PlayWaveKind(CountingWave(10), PlayKind::Recording, Loop::No);
    EXPECT_EQ(play.PlayKind, PlayKind::Recording);
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(display.status, "Playing Recorded");
    EXPECT_EQ(display.timersEnabled, 1);
    PlayWaveKind(CountingWave(10), PlayKind::Other, Loop::No);
    EXPECT_EQ(display.status, "Playing");
}

TEST_F(PlayModTest, PlayWaveTrackKeepsTrackCellAndTempo)
{
    Shared().Song.Tempo = 160;
    PlayWaveTrack(CountingWave(10), 4, 17, Loop::No);
    Shared().Song.Tempo = 320;
    EXPECT_EQ(play.PlayKind, PlayKind::SongOrTrack);
    EXPECT_EQ(play.PlayingTrack, 4);
    EXPECT_EQ(play.PlayStartPos, 17);
    EXPECT_EQ(play.PlayTempo, 160);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(display.status, "Playing Track 4");
    EXPECT_EQ(display.timersEnabled, 1);
}

TEST_F(PlayModTest, TrackMinus1IsTheWholeSong)
{
    PlayWaveTrack(CountingWave(10), kWholeSong, 1, Loop::No);
    EXPECT_EQ(play.PlayingTrack, -1);
    EXPECT_EQ(display.status, "Playing All");
}

TEST_F(PlayModTest, ATrackThatDoesNotBeginIsNoPlayingTrack)
{
    PlayWaveTrack(EmptyWave(), 4, 17, Loop::No);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(display.status, "Ready");
    EXPECT_EQ(display.timersEnabled, 0);
}

TEST_F(PlayModTest, ATrackThatMemoryRunsOutForIsNoPlayingTrack)
{
    sound.memoryFails = true;
    EXPECT_THROW(PlayWaveTrack(CountingWave(10), 4, 17, Loop::No), std::bad_alloc);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(display.status, "Ready");
    EXPECT_EQ(display.timersEnabled, 0);
}

TEST_F(PlayModTest, WithoutADeviceNeitherStatusNorTimerComeUp)
{
    sound.opens = false;
    PlayWaveTrack(CountingWave(10), 4, 17, Loop::Yes);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(display.status, "Ready");
    EXPECT_EQ(display.timersEnabled, 0);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(PlayModTest, ASecondPlayCutsTheFirstOff)
{
    PlayWaveStatus(CountingWave(10), Words::AsIs("one"), Loop::Yes);
    sound.calls.clear();
    PlayWaveStatus(CountingWave(20), Words::AsIs("two"), Loop::No);
    EXPECT_EQ(sound.calls.front(), "Stop 1");
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(play.PlayLength, 20);
    EXPECT_EQ(display.status, "two");
}

TEST_F(PlayModTest, PlayWaveDelayedPutsSilenceAheadOfBothChannels)
{
    PlayWaveDelayed(CountingWave(2), 0.00005F, Words::Text("Playing Tune"), Loop::Yes); // 2.2 frames
    EXPECT_EQ(sound.pcm, Bytes({0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 255, 255, 2, 0, 254, 255}));
    EXPECT_EQ(play.PlayLength, 4);
    EXPECT_EQ(play.PlayKind, PlayKind::Other);
    EXPECT_EQ(play.PlayingTrack, 0);
    EXPECT_EQ(display.status, "Playing Tune");
    EXPECT_EQ(display.timersEnabled, 1);
    EXPECT_EQ(display.tunesShown, 1);
}

TEST_F(PlayModTest, PlayWaveDelayedKeepsAMonoWaveMonoAndTheGivenWaveAsItIs)
{
    const WaveData wave = MonoWave(8, 11025, {5});
    PlayWaveDelayed(wave, 2 / 11025.0F, Words::Text("Playing Tune"), Loop::Yes);
    EXPECT_EQ(sound.pcm, Bytes({128, 128, 133}));
    EXPECT_EQ(wave, MonoWave(8, 11025, {5}));
}

TEST_F(PlayModTest, TheSilenceAheadOfAnEmptyWaveIsAPlay)
{
    PlayWaveDelayed(EmptyWave(), 0.75F, Words::Text("Playing Tune"), Loop::No);
    EXPECT_EQ(play.PlayLength, 33075);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(display.tunesShown, 1);
}

TEST_F(PlayModTest, AChosenTuneIsShownWithoutADriverAndWithoutADeviceToo)
{
    sound.opens = false;
    PlayWaveDelayed(CountingWave(2), 0.75F, Words::Text("Playing Tune"), Loop::No);
    EXPECT_EQ(display.tunesShown, 1);
    SetSoundDriver(false);
    PlayWaveDelayed(CountingWave(2), 0.75F, Words::Text("Playing Tune"), Loop::No);
    EXPECT_EQ(display.tunesShown, 2);
    EXPECT_EQ(display.status, "Ready");
    EXPECT_EQ(display.timersEnabled, 0);
}

TEST_F(PlayModTest, ATuneWhoseWaveIsRefusedIsNotShown)
{
    PlayWaveDelayed(EmptyWave(), 0, Words::Text("Playing Tune"), Loop::No);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(display.tunesShown, 0);
    EXPECT_EQ(display.status, "Ready");
}

TEST_F(PlayModTest, ATuneWhoseWaveFailsOnTheWayIsNotShown)
{
    PlayWaveDelayed(MonoWave(8, 11025, {128}), 0, Words::Text("Playing Tune"), Loop::No);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(display.tunesShown, 0);
    EXPECT_EQ(display.status, "Ready");
    EXPECT_EQ(display.timersEnabled, 0);
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(PlayModTest, ThePlayerOutlivesASwitchOfTheDriver)
{
    const PlayDllClass* player = &Player();
    SetSoundDriver(false);
    SetSoundDriver(true);
    EXPECT_EQ(&Player(), player);
    PlayWaveStatus(CountingWave(1), Words::Text("Playing"), Loop::No);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

TEST_F(PlayModTest, ReleasePlayerClosesTheDevice)
{
    PlayWaveStatus(CountingWave(1), Words::Text("Playing"), Loop::No);
    ReleasePlayer();
    EXPECT_EQ(sound.open, 0);
}

TEST(CellInPlay, CountsCellsAtTheTempoOfThePlayFromItsStart)
{
    PlayModState play;
    play.PlayBufRate = 44100;
    play.PlayTempo = 320; // 8268.75 frames per cell
    play.PlayStartPos = 5;
    play.PlayCursor = 1;
    EXPECT_EQ(CellInPlay(play), 5);
    play.PlayCursor = 4134;
    EXPECT_EQ(CellInPlay(play), 5);
    play.PlayCursor = 4135;
    EXPECT_EQ(CellInPlay(play), 6);
    play.PlayTempo = 160;
    EXPECT_EQ(CellInPlay(play), 5);
    play.PlayBufRate = 11025;
    EXPECT_EQ(CellInPlay(play), 6);
}

TEST(CellInPlay, TellsAnAbsurdTempo)
{
    PlayModState play;
    play.PlayBufRate = 11025;
    play.PlayTempo = 2147483647;
    play.PlayCursor = 2000000;
    EXPECT_THROW(static_cast<void>(CellInPlay(play)), RunTimeError);
}

/// Cell 31 of a track or of the whole song is playing.
PlayModState At31(std::int32_t track)
{
    PlayModState state;
    state.PlayingTrack = track;
    state.PlayBufRate = 44100;
    state.PlayTempo = 320;
    state.PlayStartPos = 31;
    return state;
}

TEST(MarkerCell, IsThatOfTheSongOrTrackThatIsHeard)
{
    EXPECT_EQ(MarkerCell(At31(kWholeSong)), 31);
    EXPECT_EQ(MarkerCell(At31(2)), 31);
    EXPECT_FALSE(MarkerCell(At31(0)));
}

TEST(MarkerCell, FollowsTheCursor)
{
    PlayModState state = At31(kWholeSong);
    state.PlayCursor = 44100; // 5.33 cells
    EXPECT_EQ(MarkerCell(state), 36);
}

TEST(MarkerCell, IsFarAwayAtAnAbsurdTempo)
{
    PlayModState state = At31(kWholeSong);
    state.PlayTempo = 2'000'000'000;
    state.PlayCursor = 30 * 44100;
    EXPECT_EQ(MarkerCell(state), 1'000'000);
}

TEST(MarkerCell, IsUnknownWhereTheCellCannotBeTold)
{
    PlayModState rateless = At31(kWholeSong);
    rateless.PlayBufRate = 0;
    EXPECT_FALSE(MarkerCell(rateless));
    PlayModState endless = At31(1);
    endless.PlayTempo = 2'000'000'000;
    endless.PlayCursor = 2'000'000'000;
    EXPECT_FALSE(MarkerCell(endless));
}

TEST(StepInPlay, CountsStepsFrom1AndIsHeldToTheCycle)
{
    PlayModState play;
    play.PlayBufRate = 44100;
    play.PlayCursor = 1;
    EXPECT_EQ(StepInPlay(play, 320, 4), 1);
    play.PlayCursor = 8268;
    EXPECT_EQ(StepInPlay(play, 320, 4), 1);
    play.PlayCursor = 8269;
    EXPECT_EQ(StepInPlay(play, 320, 4), 2);
    play.PlayCursor = 44100;
    EXPECT_EQ(StepInPlay(play, 320, 4), 4);
}

TEST(StepInPlay, IsTheFirstStepWhereTheTempoOrTheRateMakeNoSense)
{
    PlayModState play;
    EXPECT_EQ(StepInPlay(play, 320, 4), 1); // nothing was played: 0 / 0
    play.PlayBufRate = 44100;
    play.PlayCursor = 44100;
    EXPECT_EQ(StepInPlay(play, 0, 4), 1);
    EXPECT_EQ(StepInPlay(play, -320, 4), 1);
}

} // namespace
} // namespace sprout
