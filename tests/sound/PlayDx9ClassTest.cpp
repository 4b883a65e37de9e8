// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/PlayDx9Class.h"

#include <gtest/gtest.h>

#include <new>

#include "sound/PlayTest.h"

namespace sprout {
namespace {

using Calls = std::vector<std::string>;

/// The class by itself, with a play buffer of two frames of stereo words.
class PlayDx9Test : public PlayTest {
protected:
    PlayDx9Test()
    {
        play.PlayBuffer = std::vector<std::byte>(44);
        const auto samples = Bytes({1, 2, 3, 4, 5, 6, 7, 8});
        play.PlayBuffer.insert(play.PlayBuffer.end(), samples.begin(), samples.end());
        play.PlayBufBits = 16;
        play.PlayBufChannels = 2;
        play.PlayBufRate = 22050;
        play.PlayBufLength = 2;
        play.PlayOffset = 1;
        sound.calls.clear();
    }

    Calls statuses;
    PlayDx9Class backEnd{[this](const Words& prompt, const Words& title) {
        EXPECT_EQ(prompt.English(), "S2");
        statuses.push_back(title.English());
    }};
};

TEST_F(PlayDx9Test, PlayMeOpensCopiesAndStartsTheBuffer)
{
    backEnd.PutONDx9Ds(5);
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    EXPECT_EQ(sound.calls, Calls({"Open 0", "Load 1 8", "Start 1 Beginning once"}));
    EXPECT_EQ(sound.windowHandle, 5);
    EXPECT_EQ(sound.format, (SoundFormat{2, 22050, 16}));
    EXPECT_EQ(sound.bufferBytes, 8);
    EXPECT_EQ(sound.pcm, Bytes({1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(statuses, Calls({"Playing"}));
}

TEST_F(PlayDx9Test, ALoopedPlayTellsItsCount)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::Yes));
    EXPECT_EQ(sound.calls.back(), "Start 1 Beginning loop");
    EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
    EXPECT_EQ(statuses, Calls({"Playing Loop0"}));
}

TEST_F(PlayDx9Test, ASecondPlayStopsTheFirstAndPassesTheOldHandle)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::Yes));
    sound.calls.clear();
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    EXPECT_EQ(sound.calls, Calls({"Stop 1", "Open 1", "Load 2 8", "Start 2 Beginning once"}));
    EXPECT_EQ(sound.open, 1);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

TEST_F(PlayDx9Test, WithoutADeviceThePlayFailsAndTheNextOpensAgain)
{
    sound.opens = false;
    EXPECT_FALSE(backEnd.PlayMe(Loop::No));
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(statuses, Calls({"Play Failed"}));

    sound.opens = true;
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

TEST_F(PlayDx9Test, AFailedPlayEndsTheOneBefore)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::Yes));
    sound.opens = false;
    EXPECT_FALSE(backEnd.PlayMe(Loop::No));
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(sound.open, 0);
}

TEST_F(PlayDx9Test, ARunTimeErrorMakesAPlayFail)
{
    sound.driverFails = true;
    EXPECT_FALSE(backEnd.PlayMe(Loop::No));
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDx9Test, MemoryThatRunsOutIsNoFailureOfTheDevice)
{
    sound.memoryFails = true;
    EXPECT_THROW(static_cast<void>(backEnd.PlayMe(Loop::No)), std::bad_alloc);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    sound.memoryFails = false;
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
}

TEST_F(PlayDx9Test, PauseAndContinueGoOnAtThePlaceReached)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    sound.calls.clear();
    backEnd.PlayPause();
    EXPECT_EQ(play.PlayState, PlayState::Paused);
    backEnd.PlayContinue();
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(sound.calls, Calls({"Stop 1", "Start 1 WhereItStopped once"}));
}

TEST_F(PlayDx9Test, ContinueLoopsAsTheLastPlayWasAskedTo)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    backEnd.PlayPause();
    play.PlayLooping = true;
    backEnd.PlayContinue();
    EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
    EXPECT_EQ(sound.calls.back(), "Start 1 WhereItStopped loop");
}

TEST_F(PlayDx9Test, APauseStoppedAndReplayedStaysSilent)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    backEnd.PlayPause();
    backEnd.StopPlay();
    sound.calls.clear();
    backEnd.PlayReplay();
    EXPECT_EQ(sound.calls, Calls());
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDx9Test, StopPlayTellsOfIt)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::Yes));
    backEnd.StopPlay();
    EXPECT_EQ(sound.calls.back(), "Stop 1");
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(statuses.back(), "Stopped");
}

TEST_F(PlayDx9Test, LetLoopingChangesASoundInPlay)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    backEnd.LetLooping(Loop::Yes);
    EXPECT_EQ(sound.calls.back(), "SetLooping 1 loop");
    EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
    backEnd.LetLooping(Loop::No);
    EXPECT_EQ(sound.calls.back(), "SetLooping 1 once");
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

// Intended: the next position update corrects it.
TEST_F(PlayDx9Test, LetLoopingRaisesAStoppedStateUntilTheNextUpdate)
{
    backEnd.LetLooping(Loop::Yes);
    EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
    backEnd.UpdatePlayPosition();
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDx9Test, TheCursorCountsFramesFrom1)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    sound.place = {1234, true};
    backEnd.UpdatePlayPosition();
    EXPECT_EQ(play.PlayCursor, 1235);
    EXPECT_EQ(play.PlayState, PlayState::Playing);
}

TEST_F(PlayDx9Test, ASoundAtItsEndStopsThePlayAtTheNextUpdate)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::Yes));
    sound.place = {1234, false};
    backEnd.UpdatePlayPosition();
    EXPECT_EQ(play.PlayCursor, 0);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDx9Test, AfterAStopTheCursorIs0)
{
    EXPECT_TRUE(backEnd.PlayMe(Loop::No));
    sound.place.Cursor = 99;
    backEnd.StopPlay();
    backEnd.UpdatePlayPosition();
    EXPECT_EQ(play.PlayCursor, 0);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDx9Test, BeforeTheFirstPlayEveryOperationIsHarmless)
{
    backEnd.StopPlay();
    backEnd.PlayPause();
    backEnd.PlayContinue();
    backEnd.UpdatePlayPosition();
    EXPECT_EQ(sound.calls, Calls());
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(play.PlayCursor, 0);
}

TEST(PlayDx9Class, ItsEndClosesTheDeviceAndStopsThePlay)
{
    const FakeServices services;
    PlayShared() = PlayModState();
    PlayShared().PlayBuffer.resize(48);
    PlayShared().PlayBufBits = 16;
    PlayShared().PlayBufChannels = 2;
    PlayShared().PlayBufRate = 44100;
    PlayShared().PlayBufLength = 1;
    {
        PlayDx9Class backEnd({});
        EXPECT_TRUE(backEnd.PlayMe(Loop::Yes));
        EXPECT_EQ(services.sound.open, 1);
    }
    EXPECT_EQ(services.sound.open, 0);
    EXPECT_EQ(PlayShared().PlayState, PlayState::Stopped);
    PlayShared() = PlayModState();
}

} // namespace
} // namespace sprout
