// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSound.h"

#include <gtest/gtest.h>

#include <chrono>
#include <utility>

#include "service/pulse/PulsePlay.h"

namespace sprout {
namespace {

using std::chrono::milliseconds;

/// Streams that soon go to rest.
class PulseRestTest : public PulseTest {
protected:
    [[nodiscard]] bool Rests() const
    {
        return Comes([this] { return server.Inputs().empty(); });
    }

    static constexpr milliseconds kRound{20};

    PulseSoundOutput resting{kRound};
};

TEST_F(PulseRestTest, TheStreamClosesAndTheNextPlayOpensItAgain)
{
    SoundHandle sound;
    const SoundObject* first = nullptr;
    for (unsigned play = 1; play <= 3; ++play) {
        TestRecording recording(server);
        const Bytes samples = Samples(format, 3001, play);
        sound = Opened(resting, format, samples, std::move(sound));
        ASSERT_TRUE(sound);
        first = first ? first : sound.get();
        EXPECT_EQ(sound.get(), first);
        sound->Start(StartFrom::Beginning, Loop::No);
        EXPECT_TRUE(recording.Holds(samples));
        EXPECT_TRUE(Ends(sound));
        EXPECT_TRUE(Same(recording.Sounded(), samples));
        EXPECT_TRUE(Rests());
        EXPECT_FALSE(sound->Place().Playing);
        sound->Stop();
        sound->SetLooping(Loop::Yes);
    }
}

TEST_F(PulseRestTest, TheStreamClosesThoughNobodyAsksWhetherTheSoundHasEnded)
{
    SoundHandle sound = Opened(resting, format, Samples(format, 3001));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Rests());
}

TEST_F(PulseRestTest, APauseThatOutlastsTheRestGoesOnWhereItStopped)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 50000);
    SoundHandle sound = Opened(resting, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(recording.Sounds());
    sound->Stop();
    EXPECT_TRUE(Rests());
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    EXPECT_TRUE(Same(WithoutSilence(recording.Sounded()), samples));
}

TEST_F(PulseRestTest, NoRestComesBeforeTheServerToldWhereThePauseBegan)
{
    if (!server.FreezesWithItsDevice())
        GTEST_SKIP() << "This server's device runs on while it stands still, and its recording lacks a piece.";
    TestRecording recording(server);
    const Bytes samples = Samples(format, 50000);
    SoundHandle sound = Opened(resting, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(recording.Sounds());
    server.Freeze();
    const auto frozen = std::chrono::steady_clock::now();
    sound->Stop();
    EXPECT_TRUE(Comes([&] { return std::chrono::steady_clock::now() - frozen > 20 * kRound; }));
    server.Thaw();
    EXPECT_TRUE(Rests());
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    EXPECT_TRUE(Same(WithoutSilence(recording.Sounded()), samples));
}

TEST_F(PulseRestTest, ASoundInPlayKeepsItsStream)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 1001);
    SoundHandle sound = Opened(resting, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_TRUE(recording.Holds(Repeated(samples, 40 * samples.size()))); // ten times as long as a rest
}

TEST_F(PulseRestTest, PlaysAndRestsThatMeetHarmNothing)
{
    PulseSoundOutput restless(milliseconds(0)); // closes as often as it can
    SoundHandle sound;
    for (int i = 0; i < 20; ++i) {
        sound = Opened(restless, format, Samples(format, 600), std::move(sound));
        ASSERT_TRUE(sound);
        sound->Start(StartFrom::Beginning, Loop::No);
        EXPECT_TRUE(Ends(sound));
    }
}

} // namespace
} // namespace sprout
