// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/PlayDllClass.h"

#include <gtest/gtest.h>

#include <new>

#include "sound/PlayTest.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

using Calls = std::vector<std::string>;
using PlayDllTest = PlayTest;

std::vector<std::byte> Samples(const PlayModState& play)
{
    return {play.PlayBuffer.begin() + 44, play.PlayBuffer.end()};
}

const std::string kPlayFailedBox = "Could not Play Sound\r\nDriver busy or not ready\r\n"
                                   "Check whether sound driver is ON (in options window)|Play Failed";

TEST_F(PlayDllTest, DxObjGives1AndOpensNoDeviceYet)
{
    std::int32_t driver = 4711;
    Player().DxObj(driver);
    EXPECT_EQ(driver, 1);
    EXPECT_EQ(sound.calls, Calls());
}

TEST_F(PlayDllTest, DxObjPassesTheWindowOnToTheDevice)
{
    std::int32_t driver = 4711;
    Player().DxObj(driver);
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No);
    EXPECT_EQ(sound.windowHandle, 4711);
}

TEST_F(PlayDllTest, DxObjWith0StopsAndReleasesTheDevice)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::Yes);
    std::int32_t driver = 0;
    Player().DxObj(driver);
    EXPECT_EQ(driver, 0);
    EXPECT_EQ(sound.open, 0);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    play.PlayState = PlayState::Paused; // even if there is nothing to release
    Player().DxObj(driver);
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDllTest, TheBufferIsAWholeWaveFile)
{
    const WaveData wave = CountingWave(3000);
    Player().WriteWaveMemo(wave, PlayNow::No, Loop::Yes);
    const auto path = services.folder.Path() / "wave.wav";
    SaveWaveFile(wave, path);
    const std::string file = ReadBytes(path);
    const auto* bytes = reinterpret_cast<const std::byte*>(file.data());
    EXPECT_EQ(play.PlayBuffer, std::vector(bytes, bytes + file.size()));
    EXPECT_EQ(play.PlayBufBits, 16);
    EXPECT_EQ(play.PlayBufChannels, 2);
    EXPECT_EQ(play.PlayBufRate, 44100);
    EXPECT_EQ(play.PlayBufLength, 3000);
}

TEST_F(PlayDllTest, TheHeadCountsTheTail)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::No, Loop::No);
    // 1 + 2205 frames of 4 bytes.
    EXPECT_EQ(play.PlayBuffer.size(), 44U + 8824);
    EXPECT_EQ(std::vector(play.PlayBuffer.begin() + 40, play.PlayBuffer.begin() + 44), Bytes({0x78, 0x22, 0, 0}));
    EXPECT_EQ(std::vector(play.PlayBuffer.begin() + 4, play.PlayBuffer.begin() + 8), Bytes({0x9C, 0x22, 0, 0}));
}

TEST_F(PlayDllTest, TheTailIs50MillisecondsRoundedAtEveryRate)
{
    for (const auto& [rate, tail] : {std::pair(44100, 2205), std::pair(22050, 1102), std::pair(11025, 551)}) {
        Player().WriteWaveMemo(MonoWave(16, rate, {7}), PlayNow::No, Loop::No);
        EXPECT_EQ(play.PlayBufLength, 1 + tail) << rate;
    }
}

TEST_F(PlayDllTest, ALoopedPlayHasNoTail)
{
    Player().WriteWaveMemo(MonoWave(16, 44100, {7, 8}), PlayNow::No, Loop::Yes);
    EXPECT_EQ(play.PlayBufLength, 2);
    EXPECT_EQ(Samples(play), Bytes({7, 0, 8, 0}));
}

// Intended: nothing clears the tail.
TEST_F(PlayDllTest, TheTailHoldsWhatALongerPlayLeftThere)
{
    Player().WriteWaveMemo(MonoWave(8, 11025, std::vector<std::int16_t>(1000, 5)), PlayNow::No, Loop::No);
    Player().WriteWaveMemo(MonoWave(8, 11025, {1, 2}), PlayNow::No, Loop::No);
    std::vector<std::byte> expected(2 + 551, std::byte{133});
    expected[0] = std::byte{129};
    expected[1] = std::byte{130};
    EXPECT_EQ(Samples(play), expected);
}

TEST_F(PlayDllTest, TheTailOfAFirstPlayIsZeroBytes)
{
    Player().WriteWaveMemo(MonoWave(8, 11025, {1}), PlayNow::No, Loop::No);
    std::vector<std::byte> expected(1 + 551);
    expected[0] = std::byte{129};
    EXPECT_EQ(Samples(play), expected);
}

TEST_F(PlayDllTest, APlayRaisesItsStatusAndItsEnd)
{
    Listen();
    EXPECT_EQ(Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No), PlayResult::Started);
    EXPECT_EQ(raised, Calls({"S2|Writing to Play Buffer", "S1|"}));
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(PlayDllTest, AStartedPlayIsToldAgainWhetherItLoops)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::Yes);
    EXPECT_EQ(sound.calls, Calls({"Open 0", "Load 1 4", "Start 1 Beginning loop", "SetLooping 1 loop"}));
    EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
}

TEST_F(PlayDllTest, AWaveThatIsOnlyKeptEndsWithDone)
{
    Listen();
    EXPECT_EQ(Player().WriteWaveMemo(CountingWave(1), PlayNow::No, Loop::No), PlayResult::Kept);
    EXPECT_EQ(raised, Calls({"S2|Writing to Play Buffer", "S2|Done"}));
    EXPECT_EQ(sound.calls, Calls());
}

TEST_F(PlayDllTest, AnEmptyWaveIsRefusedAndStopsThePlayBefore)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::Yes);
    Listen();
    EXPECT_EQ(Player().WriteWaveMemo(EmptyWave(), PlayNow::Yes, Loop::No), PlayResult::Refused);
    EXPECT_EQ(raised, Calls({"S2|Writing to Play Buffer", "Zero size wave found|Play wave error", "S2|Play Failed"}));
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(sound.calls.back(), "Stop 1");
}

TEST_F(PlayDllTest, AnEmptyWaveThatIsNotToBePlayedLeavesThePlayBefore)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::Yes);
    Player().WriteWaveMemo(EmptyWave(), PlayNow::No, Loop::No);
    EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
}

TEST_F(PlayDllTest, UnknownFormatsAreRefused)
{
    std::vector<WaveData> waves(3, CountingWave(1));
    waves[0].Channels = 3;
    waves[1].Rate = 48000;
    waves[2].Bits = 24;
    for (const WaveData& wave : waves) {
        raised.clear();
        Listen();
        EXPECT_EQ(Player().WriteWaveMemo(wave, PlayNow::Yes, Loop::No), PlayResult::Refused);
        EXPECT_EQ(raised, Calls({"S2|Writing to Play Buffer", "Format not Known to write wave file|Play wave error",
                                 "S2|Play Failed"}));
    }
}

TEST_F(PlayDllTest, WithoutADeviceAPlayTellsItsFailureAndItsEnd)
{
    sound.opens = false;
    Listen();
    EXPECT_EQ(Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::Yes), PlayResult::NoDevice);
    EXPECT_EQ(raised, Calls({"S2|Writing to Play Buffer", "S2|Play Failed", kPlayFailedBox, "S1|"}));
    // Looping is set only for a play that has begun; otherwise its state would rise.
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDllTest, WithoutADriverAPlayFails)
{
    std::int32_t off = 0;
    Player().DxObj(off);
    Listen();
    EXPECT_EQ(Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No), PlayResult::NoDevice);
    EXPECT_EQ(raised, Calls({"S2|Writing to Play Buffer", "S2|Play Failed", kPlayFailedBox, "S1|"}));
}

TEST_F(PlayDllTest, ASampleBeyond8BitsEndsThePlayCallWithWords)
{
    Listen();
    EXPECT_EQ(Player().WriteWaveMemo(MonoWave(8, 44100, {128}), PlayNow::Yes, Loop::No), PlayResult::Refused);
    EXPECT_EQ(raised, Calls({"S2|Writing to Play Buffer", "A sample does not fit into 8 bits.|Play Wave error",
                             "S2|Failed to play"}));
    EXPECT_EQ(sound.calls, Calls());
}

TEST_F(PlayDllTest, MemoryThatRunsOutIsToldAndPasses)
{
    sound.memoryFails = true;
    Listen();
    EXPECT_THROW(Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No), std::bad_alloc);
    EXPECT_EQ(raised,
              Calls({"S2|Writing to Play Buffer", "There is not enough memory.|Play Wave error", "S2|Failed to play"}));
}

TEST_F(PlayDllTest, ARunTimeErrorLeavesThePlayBefore)
{
    Player().WriteWaveMemo(CountingWave(3), PlayNow::Yes, Loop::Yes);
    sound.calls.clear();
    WaveData headOnly = CountingWave(2);
    headOnly.Length = 300;
    for (const WaveData& failing : {MonoWave(8, 11025, {128}), headOnly}) {
        EXPECT_EQ(Player().WriteWaveMemo(failing, PlayNow::Yes, Loop::No), PlayResult::Refused);
        EXPECT_EQ(sound.calls, Calls());
        EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
        EXPECT_EQ(play.PlayBufBits, 16);
        EXPECT_EQ(play.PlayBufChannels, 2);
        EXPECT_EQ(play.PlayBufRate, 44100);
        EXPECT_EQ(play.PlayBufLength, 3);
    }
}

TEST_F(PlayDllTest, AWaveReadWithoutItsSamplesEndsThePlayCallWithWords)
{
    WaveData headOnly = CountingWave(2);
    headOnly.Length = 300;
    Listen();
    EXPECT_EQ(Player().WriteWaveMemo(headOnly, PlayNow::Yes, Loop::No), PlayResult::Refused);
    EXPECT_EQ(raised[1], "The sound is shorter than it says.|Play Wave error");
    EXPECT_TRUE(play.PlayBuffer.empty());
}

TEST_F(PlayDllTest, GetLastPlayedStreamIsASingle0BeforeTheFirstPlay)
{
    EXPECT_EQ(Player().GetLastPlayedStream(), std::vector<std::int32_t>({0}));
}

TEST_F(PlayDllTest, GetLastPlayedStreamGivesTheBufferAsWords)
{
    Player().WriteWaveMemo(MonoWave(8, 11025, {1, 2, 3, 4, 5}), PlayNow::No, Loop::Yes);
    const std::vector<std::int32_t> words = Player().GetLastPlayedStream();
    ASSERT_EQ(words.size(), 13U); // 49 bytes: elements 0 to 12
    EXPECT_EQ(words[0], 0x46464952);
    EXPECT_EQ(words[10], 5);
    EXPECT_EQ(words[11], static_cast<std::int32_t>(0x84838281));
    EXPECT_EQ(words[12], 0x85);
}

TEST_F(PlayDllTest, GetLastPlayedStreamOfWholeWordsEndsWithA0)
{
    Player().WriteWaveMemo(MonoWave(8, 11025, {1, 2, 3, 4}), PlayNow::No, Loop::Yes);
    const std::vector<std::int32_t> words = Player().GetLastPlayedStream();
    ASSERT_EQ(words.size(), 13U);
    EXPECT_EQ(words[12], 0);
}

TEST_F(PlayDllTest, ContinueAndReplayTellThatThereIsNothingYet)
{
    Listen();
    Player().PlayContinue();
    Player().PlayReplay();
    EXPECT_EQ(raised, Calls({"S2|Nothing to Continue", "S2|Nothing to Replay"}));
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDllTest, PauseAndContinueReachTheDevice)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No);
    Player().PlayPause();
    EXPECT_EQ(play.PlayState, PlayState::Paused);
    Player().PlayContinue();
    EXPECT_EQ(play.PlayState, PlayState::Playing);
    EXPECT_EQ(sound.calls.back(), "Start 1 WhereItStopped once");
}

TEST_F(PlayDllTest, SetLoopingReachesTheDeviceAndNotTheRequestOfThePlay)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No);
    Player().SetLooping(Loop::Yes);
    EXPECT_EQ(sound.calls.back(), "SetLooping 1 loop");
    EXPECT_EQ(play.PlayState, PlayState::PlayingLoop);
    EXPECT_FALSE(play.PlayLooping);
}

TEST_F(PlayDllTest, UpdatePlayPositionFindsTheEnd)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No);
    sound.place = {1, false};
    Player().UpdatePlayPosition();
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(play.PlayCursor, 0);
}

TEST_F(PlayDllTest, ReplayAfterAPlayIsSilent)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No);
    Player().StopPlay();
    sound.calls.clear();
    Player().PlayReplay();
    EXPECT_EQ(sound.calls, Calls());
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
}

TEST_F(PlayDllTest, WithoutADriverNoOperationReachesADevice)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::No, Loop::No);
    std::int32_t off = 0;
    Player().DxObj(off);
    play.PlayCursor = 9;
    Player().StopPlay();
    Player().PlayPause();
    Player().PlayContinue();
    Player().PlayReplay();
    Player().SetLooping(Loop::Yes);
    Player().UpdatePlayPosition();
    EXPECT_EQ(sound.calls, Calls());
    EXPECT_EQ(play.PlayState, PlayState::Stopped);
    EXPECT_EQ(play.PlayCursor, 9);
}

TEST_F(PlayDllTest, FailuresOfTheDeviceAreRaisedUnderTheTitleOfTheOperation)
{
    Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No);
    Listen();
    sound.driverFails = true;
    Player().StopPlay();
    Player().PlayContinue();
    Player().PlayPause();
    Player().SetLooping(Loop::Yes);
    Player().UpdatePlayPosition();
    EXPECT_EQ(raised, Calls({"The driver is gone.|Stop Play error", "The driver is gone.|Play Continue error",
                             "The driver is gone.|Play Pause error", "The driver is gone.|", "The driver is gone.|"}));
}

TEST_F(PlayDllTest, ABackEndsStatusNeedsNothingAndItsMessageIsShown)
{
    Player().PlayDx9Cls_MsgBoxOb(Words::AsIs("S2"), Words::Text("Playing"));
    EXPECT_TRUE(services.messages.shown.empty());
    Player().PlayDx9Cls_MsgBoxOb(Words::AsIs("The device is busy"), Words::AsIs("Sound"));
    ASSERT_EQ(services.messages.shown.size(), 1U);
    EXPECT_EQ(services.messages.shown[0].text, "The device is busy");
    EXPECT_EQ(services.messages.shown[0].title, "Sound");
}

TEST_F(PlayDllTest, DxObjTakesEveryWindowAbove0)
{
    for (const std::int32_t window : {1, 2, 0, -1}) {
        std::int32_t driver = window;
        Player().DxObj(driver);
        const PlayResult result = Player().WriteWaveMemo(CountingWave(1), PlayNow::Yes, Loop::No);
        EXPECT_EQ(result, window > 0 ? PlayResult::Started : PlayResult::NoDevice) << window;
    }
}

} // namespace
} // namespace sprout
