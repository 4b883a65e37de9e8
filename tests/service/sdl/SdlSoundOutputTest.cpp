// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/SdlSoundOutput.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>

#include "service/sdl/SdlPlay.h"

namespace sprout {
namespace {

TEST_F(SdlDummyTest, ListsItsOneDevice)
{
    EXPECT_EQ(output.SoundDeviceCount(), 1);
}

TEST_F(SdlDummyTest, TheCursorFollowsTheSoundToItsEnd)
{
    SoundHandle sound = Opened(output, format, Samples(format, 8820)); // 200 ms
    ASSERT_TRUE(sound);
    const auto begun = Clock::now();
    sound->Start(StartFrom::Beginning, Loop::No);
    std::int32_t cursor = 0;
    bool goesBack = false;
    EXPECT_TRUE(Comes([&] {
        const SoundPlace place = sound->Place();
        goesBack = goesBack || place.Cursor < cursor;
        cursor = place.Cursor;
        return !place.Playing;
    }));
    EXPECT_FALSE(goesBack);
    EXPECT_GT(cursor, 8820 / 2);
    EXPECT_LT(cursor, 8820);
    EXPECT_GT(Clock::now() - begun, std::chrono::milliseconds(100));
}

TEST_F(SdlDummyTest, AStopIsKnownAtOnce)
{
    SoundHandle sound = Opened(output, format, Samples(format, 1000));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_TRUE(Comes([&] { return sound->Place().Cursor > 0; }));
    sound->Stop();
    EXPECT_FALSE(sound->Place().Playing);
}

TEST_F(SdlDummyTest, ALoopGoesOnUntilItIsSwitchedOff)
{
    SoundHandle sound = Opened(output, format, Samples(format, 2000));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    std::int32_t cursor = 0;
    EXPECT_TRUE(Comes([&] {
        const std::int32_t before = std::exchange(cursor, sound->Place().Cursor);
        return cursor < before;
    }));
    EXPECT_TRUE(sound->Place().Playing);
    sound->SetLooping(Loop::No);
    EXPECT_TRUE(Ends(sound));
}

TEST_F(SdlDummyTest, ASoundOfTheSameFormatKeepsTheDevice)
{
    SoundHandle sound = Opened(output, format, Samples(format, 100));
    const SoundObject* first = sound.get();
    sound = Opened(output, format, Samples(format, 200), std::move(sound));
    EXPECT_EQ(sound.get(), first);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Ends(sound));
}

TEST_F(SdlDummyTest, AnotherFormatOpensTheDeviceAgain)
{
    SoundHandle sound = Opened(output, format, Samples(format, 100));
    const SoundFormat other{1, 11025, 8};
    sound = Opened(output, other, Samples(other, 1000), std::move(sound));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(sound->Place().Playing);
    EXPECT_TRUE(Ends(sound));
}

TEST_F(SdlDummyTest, SignalsStillEndTheProgram)
{
    ASSERT_EQ(output.SoundDeviceCount(), 1);
    for (const int number : {SIGINT, SIGTERM}) {
        struct sigaction action = {};
        ASSERT_EQ(sigaction(number, nullptr, &action), 0);
        EXPECT_EQ(action.sa_handler, SIG_DFL) << number;
    }
}

/// A machine without sound.
class SdlNoSoundTest : public SdlTest {
protected:
    SdlNoSoundTest() : SdlTest("none of SDL's") {}

    SdlSoundOutput output;
};

TEST_F(SdlNoSoundTest, ListsNoDeviceAndOpensNone)
{
    EXPECT_EQ(output.SoundDeviceCount(), 0);
    EXPECT_FALSE(output.Open(nullptr, 0, SoundFormat(), 4));
}

/// A machine with ALSA, SDL's fallback, but without a card.
class SdlAlsaTest : public SdlTest {
protected:
    SdlAlsaTest() : SdlTest("alsa") {}

    SdlSoundOutput output;
};

TEST_F(SdlAlsaTest, AFailedPlayWritesNothingOnTheStandardError)
{
    if (output.SoundDeviceCount() > 0)
        GTEST_SKIP() << "This machine has a sound card.";
    testing::internal::CaptureStderr();
    EXPECT_FALSE(output.Open(nullptr, 0, SoundFormat(), 4));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(SdlNoSoundTest, ADeviceThatComesLaterIsFound)
{
    EXPECT_FALSE(output.Open(nullptr, 0, SoundFormat(), 4));
    setenv("SDL_AUDIODRIVER", "dummy", 1);
    EXPECT_TRUE(output.Open(nullptr, 0, SoundFormat(), 4));
    EXPECT_EQ(output.SoundDeviceCount(), 1);
}

} // namespace
} // namespace sprout
