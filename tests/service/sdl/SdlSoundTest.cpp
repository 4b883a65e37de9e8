// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/SdlSoundOutput.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <thread>

#include "service/sdl/SdlPlay.h"

namespace sprout {
namespace {

TEST_F(SdlDiskTest, EveryFormatComesOutBitExact)
{
    for (const std::int32_t rate : {44100, 22050, 11025})
        for (const std::int32_t bits : {8, 16})
            for (const std::int32_t channels : {1, 2}) {
                SCOPED_TRACE(std::to_string(rate) + " " + std::to_string(bits) + " " + std::to_string(channels));
                const SoundFormat format{channels, rate, bits};
                const Bytes samples = Samples(format, 5001);
                SoundHandle sound = Opened(output, format, samples);
                ASSERT_TRUE(sound);
                sound->Start(StartFrom::Beginning, Loop::No);
                EXPECT_TRUE(Ends(sound));
                sound.reset();
                EXPECT_EQ(Sounded(format), samples);
            }
}

TEST_F(SdlDiskTest, ALoopHasNoGap)
{
    const SoundFormat format;
    const Bytes samples = Samples(format, 1000);
    SoundHandle sound = Opened(output, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_TRUE(FileGrows(20 * samples.size()));
    EXPECT_TRUE(sound->Place().Playing);
    sound.reset();
    const Bytes sounded = Sounded(format);
    EXPECT_GT(sounded.size(), 10 * samples.size());
    EXPECT_EQ(sounded, Repeated(samples, sounded.size()));
}

TEST_F(SdlDiskTest, ALoopSwitchedOffEndsWithAWholePass)
{
    const SoundFormat format;
    const Bytes samples = Samples(format, 1000);
    SoundHandle sound = Opened(output, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_TRUE(FileGrows(10 * samples.size()));
    sound->SetLooping(Loop::No);
    EXPECT_TRUE(Ends(sound));
    sound.reset();
    const Bytes sounded = Sounded(format);
    EXPECT_EQ(sounded.size() % samples.size(), 0U);
    EXPECT_EQ(sounded, Repeated(samples, sounded.size()));
}

TEST_F(SdlDiskTest, APauseIsSilentAndLosesNoFrame)
{
    const SoundFormat format;
    const Bytes samples = Samples(format, 1001);
    SoundHandle sound = Opened(output, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_TRUE(FileGrows(10 * samples.size()));
    sound->Stop();
    EXPECT_TRUE(FileGrows(10 * samples.size()));
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(Ends(sound));
    sound.reset();

    Bytes sounded = Sounded(format);
    const auto silent = std::count(sounded.begin(), sounded.end(), std::byte{0});
    EXPECT_GE(silent, 5 * static_cast<std::ptrdiff_t>(samples.size()));
    sounded.erase(std::remove(sounded.begin(), sounded.end(), std::byte{0}), sounded.end());
    EXPECT_EQ(sounded.size() % samples.size(), 0U);
    EXPECT_EQ(sounded, Repeated(samples, sounded.size()));
}

TEST_F(SdlDiskTest, TheNextSoundOnTheSameDeviceCutsTheFirstOff)
{
    const SoundFormat format;
    SoundHandle sound = Opened(output, format, Samples(format, 500));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_TRUE(FileGrows(10000));
    Bytes samples = Samples(format, 3000);
    std::reverse(samples.begin(), samples.end());
    sound = Opened(output, format, samples, std::move(sound));
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Ends(sound));
    sound.reset();
    const Bytes sounded = Sounded(format);
    ASSERT_GT(sounded.size(), samples.size());
    EXPECT_TRUE(std::equal(samples.rbegin(), samples.rend(), sounded.rbegin()));
}

/// Devices that soon go to rest.
constexpr std::chrono::milliseconds kShortRound{2};

std::ptrdiff_t ThreadsOfThisProgram()
{
    // The thread sanitizer's own thread starts with the program's first thread and stays.
    static const bool oneWasStarted = [] {
        std::thread([] {}).join();
        return true;
    }();
    static_cast<void>(oneWasStarted);
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

TEST_F(SdlDummyTest, AtRestNothingRuns)
{
    SdlSoundOutput resting(kShortRound);
    ASSERT_EQ(resting.SoundDeviceCount(), 1);
    const auto threads = ThreadsOfThisProgram();
    SoundHandle sound = Opened(resting, format, Samples(format, 1000));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_GT(ThreadsOfThisProgram(), threads); // a device in use
    sound->SetLooping(Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(Comes([&] { return ThreadsOfThisProgram() == threads; }));
    EXPECT_FALSE(sound->Place().Playing);
    sound->Stop();
    sound->SetLooping(Loop::Yes);
}

TEST_F(SdlDiskTest, AfterARestTheNextPlayOpensTheDeviceAgain)
{
    SdlSoundOutput resting(kShortRound);
    const SoundFormat format;
    const Bytes samples = Samples(format, 3001);
    const auto threads = ThreadsOfThisProgram();
    SoundHandle sound;
    for (int i = 0; i < 3; ++i) {
        sound = Opened(resting, format, samples, std::move(sound));
        ASSERT_TRUE(sound);
        sound->Start(StartFrom::Beginning, Loop::No);
        EXPECT_TRUE(Ends(sound));
        EXPECT_TRUE(Comes([&] { return ThreadsOfThisProgram() == threads; }));
        EXPECT_EQ(Sounded(format), samples); // in a file that was begun again
    }
}

TEST_F(SdlDiskTest, APauseThatOutlastsTheRestGoesOnWhereItStopped)
{
    SdlSoundOutput resting(kShortRound);
    const SoundFormat format;
    const Bytes samples = Samples(format, 50000);
    const auto threads = ThreadsOfThisProgram();
    SoundHandle sound = Opened(resting, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Comes([&] { return sound->Place().Cursor > 0; }));
    sound->Stop();
    EXPECT_TRUE(Comes([&] { return ThreadsOfThisProgram() == threads; }));
    Bytes sounded = Sounded(format);
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(Ends(sound));
    sound.reset();
    const Bytes rest = Sounded(format);
    sounded.insert(sounded.end(), rest.begin(), rest.end());
    EXPECT_EQ(sounded, samples);
}

TEST_F(SdlDiskTest, ASoundInPlayKeepsItsDevice)
{
    SdlSoundOutput resting(kShortRound);
    const SoundFormat format;
    const Bytes samples = Samples(format, 1000);
    SoundHandle sound = Opened(resting, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    const auto longEnough = Clock::now() + 20 * kShortRound;
    EXPECT_TRUE(Comes([&] { return Clock::now() > longEnough; }));
    EXPECT_TRUE(sound->Place().Playing);
    sound.reset();
    const Bytes sounded = Sounded(format);
    EXPECT_EQ(sounded, Repeated(samples, sounded.size()));
}

TEST_F(SdlDummyTest, PlaysAndRestsThatMeetHarmNothing)
{
    SdlSoundOutput resting(std::chrono::milliseconds(0)); // closes as often as it can
    SoundHandle sound;
    for (int i = 0; i < 30; ++i) {
        sound = Opened(resting, format, Samples(format, 600), std::move(sound));
        ASSERT_TRUE(sound);
        sound->Start(StartFrom::Beginning, Loop::No);
        ASSERT_TRUE(Ends(sound));
        ASSERT_TRUE(Comes([&] { return sound->Place().Cursor > 0; })); // the device took it
    }
}

} // namespace
} // namespace sprout
