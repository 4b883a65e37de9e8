// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/SdlSoundOutput.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

#include "support/TestFolder.h"

namespace sprout {
namespace {

using Bytes = std::vector<std::byte>;
using Clock = std::chrono::steady_clock;

std::byte Silence(const SoundFormat& format)
{
    return format.Bits == 8 ? std::byte{0x80} : std::byte{0};
}

/// Samples without silent bytes, different enough that no frame can be taken for another.
Bytes Samples(const SoundFormat& format, int frames)
{
    Bytes bytes;
    unsigned value = 1;
    for (int i = 0; i < frames * format.FrameBytes(); ++i) {
        value = value * 1103515245 + 12345;
        bytes.push_back(static_cast<std::byte>(1 + (value >> 16) % 127));
    }
    return bytes;
}

/// Returns true as soon as `condition` holds; false if that takes too long.
bool Comes(const std::function<bool()>& condition)
{
    const auto deadline = Clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (Clock::now() > deadline)
            return false;
        std::this_thread::yield();
    }
    return true;
}

/// An open, silent sound of `samples`.
SoundHandle Opened(SdlSoundOutput& output, const SoundFormat& format, const Bytes& samples, SoundHandle old = nullptr)
{
    SoundHandle sound = output.Open(std::move(old), 0, format, static_cast<std::int32_t>(samples.size()));
    if (sound)
        sound->Load(samples);
    return sound;
}

class SdlTest : public ::testing::Test {
protected:
    explicit SdlTest(const char* driver) { setenv("SDL_AUDIODRIVER", driver, 1); }
    ~SdlTest() override { unsetenv("SDL_AUDIODRIVER"); }
};

/// A silent device that plays at the speed of the clock.
class SdlDummyTest : public SdlTest {
protected:
    SdlDummyTest() : SdlTest("dummy") {}

    SdlSoundOutput output;
    const SoundFormat format;
};

/// A device that writes what it plays into a file, as fast as it can.
class SdlDiskTest : public SdlTest {
protected:
    SdlDiskTest() : SdlTest("disk")
    {
        setenv("SDL_DISKAUDIOFILE", file.c_str(), 1);
        setenv("SDL_DISKAUDIODELAY", "0", 1);
    }
    ~SdlDiskTest() override
    {
        unsetenv("SDL_DISKAUDIOFILE");
        unsetenv("SDL_DISKAUDIODELAY");
    }

    [[nodiscard]] bool FileGrows(std::uintmax_t byBytes) const
    {
        const auto before = std::filesystem::file_size(file);
        return Comes([&] { return std::filesystem::file_size(file) >= before + byBytes; });
    }

    [[nodiscard]] Bytes Played() const
    {
        const std::string text = ReadBytes(file);
        const auto* bytes = reinterpret_cast<const std::byte*>(text.data());
        return {bytes, bytes + text.size()};
    }

    /// What was played, without the silence before and after it.
    [[nodiscard]] Bytes Sounded(const SoundFormat& format) const
    {
        const Bytes all = Played();
        const auto sounds = [silence = Silence(format)](std::byte byte) { return byte != silence; };
        const auto first = std::find_if(all.begin(), all.end(), sounds);
        const auto last = std::find_if(all.rbegin(), all.rend(), sounds).base();
        return first < last ? Bytes(first, last) : Bytes();
    }

    TestFolder folder;
    const std::string file = folder.Path() / "played.raw";
    SdlSoundOutput output;
};

bool Ends(const SoundHandle& sound)
{
    return Comes([&] { return !sound->Place().Playing; });
}

Bytes Repeated(const Bytes& samples, std::size_t bytes)
{
    Bytes repeated;
    for (std::size_t i = 0; i < bytes; ++i)
        repeated.push_back(samples[i % samples.size()]);
    return repeated;
}

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
    EXPECT_GT(ThreadsOfThisProgram(), threads);
    sound->Start(StartFrom::Beginning, Loop::No);
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
        EXPECT_TRUE(sound->Place().Playing);
        EXPECT_TRUE(Ends(sound));
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
