// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSound.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "service/pulse/PulsePlay.h"

namespace sprout {
namespace {

/// A device that gives back what it has not played yet, as most cards do. In the recording, each beginning lacks what
/// was given back: there is silence that the device did not get to play.
class PulseRewindTest : public ::testing::Test {
protected:
    static constexpr std::size_t kGivenBack = 2 * 1764; // 20 ms

    void SetUp() override { ASSERT_TRUE(server.Start()); }

    /// Returns true if the end of the recording is the whole sound except its first moments.
    static bool EndsWith(const Bytes& sounded, const Bytes& samples)
    {
        const auto tail = static_cast<std::ptrdiff_t>(samples.size() - kGivenBack);
        return std::ssize(sounded) >= tail && std::equal(samples.end() - tail, samples.end(), sounded.end() - tail);
    }

    const SoundFormat format;
    TestSoundServer server{format, Rewinds::Yes};
    PulseSoundOutput output;
};

TEST_F(PulseRewindTest, EachSoundIsHeardToItsEndAndCutsTheOneBeforeOff)
{
    TestRecording recording(server);
    SoundHandle sound;
    for (unsigned play = 1; play <= 3; ++play) {
        const Bytes samples = Samples(format, 30000, play);
        sound = Opened(output, format, samples, std::move(sound));
        ASSERT_TRUE(sound);
        sound->Start(StartFrom::Beginning, Loop::Yes);
        EXPECT_TRUE(recording.Holds(Bytes(samples.begin() + kGivenBack, samples.end())));
    }
    const Bytes samples = Samples(format, 30000, 9);
    sound = Opened(output, format, samples, std::move(sound));
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    EXPECT_TRUE(EndsWith(recording.Sounded(), samples));
}

TEST_F(PulseRewindTest, ALoopSwitchedOffEndsWithItsPass)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 8820);
    SoundHandle sound = Opened(output, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_TRUE(recording.Sounds());
    sound->SetLooping(Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    EXPECT_TRUE(EndsWith(recording.Sounded(), samples));
}

TEST_F(PulseRewindTest, APauseIsSilentAndTheSoundGoesOnToItsEnd)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 44100);
    SoundHandle sound = Opened(output, format, samples);
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(recording.Sounds());
    sound->Stop();
    EXPECT_TRUE(Comes([this] { return server.HasStoppedInput(); }));
    EXPECT_TRUE(recording.CatchesUp());
    const std::int32_t stoppedAt = sound->Place().Cursor;
    EXPECT_NEAR(stoppedAt, static_cast<double>(recording.Sounded().size()) / format.FrameBytes(), 882);
    EXPECT_TRUE(recording.CatchesUp());
    EXPECT_EQ(sound->Place().Cursor, stoppedAt);
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    const Bytes sounded = recording.Sounded();
    EXPECT_TRUE(EndsWith(sounded, Bytes(samples.end() - 88200, samples.end())));
    EXPECT_NEAR(static_cast<double>(WithoutSilence(sounded).size()), static_cast<double>(samples.size()),
                3.0 * kGivenBack);
}

} // namespace
} // namespace sprout
