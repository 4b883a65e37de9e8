// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSoundOutput.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <utility>

#include "service/pulse/PulsePlay.h"

namespace sprout {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

TEST_F(PulseTest, CountsTheServersDevices)
{
    EXPECT_EQ(output.SoundDeviceCount(), 1);
}

TEST_F(PulseTest, ASoundOfTheSameFormatKeepsTheStream)
{
    SoundHandle sound = Opened(output, format, Samples(format, 100));
    const SoundObject* const first = sound.get();
    const std::string inputs = server.Inputs();
    EXPECT_NE(inputs, "");
    sound = Opened(output, format, Samples(format, 200), std::move(sound));
    EXPECT_EQ(sound.get(), first);
    EXPECT_EQ(server.Inputs(), inputs);
}

TEST_F(PulseTest, AnotherFormatOpensAStreamOfItsOwn)
{
    SoundHandle sound = Opened(output, format, Samples(format, 100));
    const std::string inputs = server.Inputs();
    const SoundFormat other{1, 11025, 8};
    sound = Opened(output, other, Samples(other, 1000), std::move(sound));
    ASSERT_TRUE(sound);
    EXPECT_NE(server.Inputs(), inputs);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Ends(sound));
}

/// The server comes, goes and freezes.
class PulseServerTest : public ::testing::Test {
protected:
    /// Futile waits end before the window seems frozen.
    static constexpr std::chrono::seconds kBearable{2};

    const SoundFormat format;
    TestSoundServer server{format};
    PulseSoundOutput output;
    const Bytes samples = Samples(format, 44100);
};

TEST_F(PulseServerTest, WithoutAServerThereIsNoDevice)
{
    EXPECT_EQ(output.AskServer(), ServerAnswer::No);
    EXPECT_EQ(output.SoundDeviceCount(), 0);
    EXPECT_FALSE(output.Open(nullptr, 0, format, 4));
}

TEST_F(PulseServerTest, AServerThatComesLaterIsFound)
{
    EXPECT_FALSE(output.Open(nullptr, 0, format, 4));
    ASSERT_TRUE(server.Start());
    EXPECT_EQ(output.SoundDeviceCount(), 1);
    EXPECT_TRUE(output.Open(nullptr, 0, format, 4));
}

TEST_F(PulseServerTest, ItsDeathEndsThePlayAndTheNextPlayOnANewOneIsHeard)
{
    ASSERT_TRUE(server.Start());
    SoundHandle sound = Opened(output, format, samples);
    ASSERT_TRUE(sound);
    for (int death = 0; death < 3; ++death) {
        sound->Start(StartFrom::Beginning, Loop::Yes);
        EXPECT_TRUE(Comes([&] { return sound->Place().Cursor > 0; }));
        server.Kill();
        EXPECT_TRUE(Ends(sound));
        sound->SetLooping(Loop::No);
        sound->Stop();
        ASSERT_TRUE(server.Start());
        TestRecording recording(server);
        sound = Opened(output, format, samples, std::move(sound));
        ASSERT_TRUE(sound);
        sound->Start(StartFrom::Beginning, Loop::No);
        EXPECT_TRUE(recording.Holds(samples));
    }
}

TEST_F(PulseServerTest, ASoundGoesOnOnANewServer)
{
    ASSERT_TRUE(server.Start());
    SoundHandle sound = Opened(output, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Comes([&] { return sound->Place().Cursor > 10000; }));
    sound->Stop();
    server.Kill();
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(Ends(sound));
    ASSERT_TRUE(server.Start());
    TestRecording recording(server);
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(sound->Place().Playing);
    const Bytes last(samples.end() - 20000, samples.end());
    EXPECT_TRUE(recording.Holds(last));
    EXPECT_LT(recording.Sounded().size(), samples.size() - 10000);
}

TEST_F(PulseServerTest, ADeathAtRestIsNoticedByTheNextPlay)
{
    PulseSoundOutput resting{milliseconds(20)};
    ASSERT_TRUE(server.Start());
    SoundHandle sound = Opened(resting, format, samples);
    ASSERT_TRUE(sound);
    EXPECT_TRUE(Comes([&] { return server.Inputs().empty(); }));
    server.Kill();
    sound = Opened(resting, format, samples, std::move(sound));
    EXPECT_FALSE(sound);
    ASSERT_TRUE(server.Start());
    TestRecording recording(server);
    sound = Opened(resting, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(recording.Holds(samples));
}

TEST_F(PulseServerTest, OneThatStandsStillHoldsNobodyUp)
{
    ASSERT_TRUE(server.Start());
    server.Freeze();
    const auto before = Clock::now();
    EXPECT_EQ(output.AskServer(), ServerAnswer::Silence);
    EXPECT_LT(Clock::now() - before, kBearable);
    EXPECT_FALSE(output.Open(nullptr, 0, format, 4));
    EXPECT_EQ(output.SoundDeviceCount(), 0);
    EXPECT_LT(Clock::now() - before, 3 * kBearable);
    server.Thaw();
    EXPECT_TRUE(Comes([&] { return output.SoundDeviceCount() == 1; }));
}

TEST_F(PulseServerTest, OneThatStandsStillWhileItPlaysHoldsNobodyUpAndGoesOn)
{
    ASSERT_TRUE(server.Start());
    SoundHandle sound = Opened(output, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_TRUE(Comes([&] { return sound->Place().Cursor > 0; }));
    server.Freeze();
    const auto before = Clock::now();
    for (int click = 0; click < 40; ++click) {
        sound->SetLooping(Loop::No);
        sound->Stop();
        EXPECT_FALSE(sound->Place().Playing);
        sound = Opened(output, format, samples, std::move(sound));
        if (!sound)
            break;
        sound->Start(StartFrom::Beginning, Loop::Yes);
    }
    EXPECT_LT(Clock::now() - before, 2 * kBearable);
    server.Thaw();
    TestRecording recording(server);
    EXPECT_TRUE(Comes([&] {
        sound = Opened(output, format, samples, std::move(sound));
        return sound != nullptr;
    }));
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(recording.Holds(samples));
    EXPECT_TRUE(Ends(sound));
}

TEST_F(PulseServerTest, ASoundIsHeardToItsEndThoughTheDeviceStoodStill)
{
    ASSERT_TRUE(server.Start());
    const Bytes brief = Samples(format, format.Rate * 3 / 10); // all of it is queued
    TestRecording recording(server);
    SoundHandle sound = Opened(output, format, brief);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Comes([&] { return sound->Place().Cursor > 0; }));
    server.Freeze();
    const auto frozen = Clock::now();
    EXPECT_TRUE(Comes([&] { return !sound->Place().Playing || Clock::now() - frozen > milliseconds(600); }));
    EXPECT_TRUE(sound->Place().Playing);
    server.Thaw();
    EXPECT_TRUE(Ends(sound));
    if (!server.FreezesWithItsDevice())
        GTEST_SKIP() << "This server's device runs on while it stands still, and its recording lacks a piece.";
    EXPECT_TRUE(recording.Holds(brief));
}

TEST_F(PulseServerTest, OutputsCanGoWhileTheServerStandsStill)
{
    ASSERT_TRUE(server.Start());
    const auto before = Clock::now();
    {
        PulseSoundOutput brief;
        SoundHandle sound = Opened(brief, format, samples);
        ASSERT_TRUE(sound);
        sound->Start(StartFrom::Beginning, Loop::Yes);
        server.Freeze();
    }
    EXPECT_LT(Clock::now() - before, kBearable);
}

} // namespace
} // namespace sprout
