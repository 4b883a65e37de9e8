// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSound.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <string>
#include <utility>

#include "service/pulse/PulsePlay.h"

namespace sprout {
namespace {

using Clock = std::chrono::steady_clock;

/// The bytes of the queue at the server.
const std::size_t kQueue = static_cast<std::size_t>(BytesOf(SoundFormat(), kQueuedAtServer));

TEST(PulseFormats, AreHeardBitExactEach)
{
    for (const std::int32_t rate : {44100, 22050, 11025})
        for (const std::int32_t bits : {8, 16})
            for (const std::int32_t channels : {1, 2}) {
                SCOPED_TRACE(std::to_string(rate) + " " + std::to_string(bits) + " " + std::to_string(channels));
                const SoundFormat format{channels, rate, bits};
                TestSoundServer server(format);
                ASSERT_TRUE(server.Start());
                PulseSoundOutput output;
                TestRecording recording(server);
                const Bytes samples = Samples(format, rate * 7 / 10);
                SoundHandle sound = Opened(output, format, samples);
                ASSERT_TRUE(sound);
                sound->Start(StartFrom::Beginning, Loop::No);
                EXPECT_TRUE(recording.Holds(samples));
                EXPECT_TRUE(Ends(sound));
                EXPECT_TRUE(Same(recording.Sounded(), samples));
            }
}

TEST_F(PulseTest, ASoundThatIsLongerThanTheQueueIsHeardWhole)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, static_cast<int>(kQueue) / format.FrameBytes() + 10000);
    SoundHandle sound = Playing(samples, Loop::No, recording);
    ASSERT_TRUE(sound);
    EXPECT_TRUE(recording.Holds(samples));
    EXPECT_TRUE(Ends(sound));
}

TEST_F(PulseTest, APlayIsHeardFromItsFirstFrameToItsLastAgainAndAgain)
{
    SoundHandle sound;
    for (unsigned play = 1; play <= 5; ++play) {
        TestRecording recording(server);
        const Bytes samples = Samples(format, 10001, play);
        sound = Opened(output, format, samples, std::move(sound));
        ASSERT_TRUE(sound);
        sound->Start(StartFrom::Beginning, Loop::No);
        EXPECT_TRUE(recording.Holds(samples));
        EXPECT_TRUE(Ends(sound));
        EXPECT_TRUE(Same(recording.Sounded(), samples));
    }
}

TEST_F(PulseTest, ItPlaysUntilTheLastFrameIsHeard)
{
    const auto begun = Clock::now();
    SoundHandle sound = Opened(output, format, Samples(format, format.Rate));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Ends(sound));
    // PipeWire reports a few milliseconds too early.
    EXPECT_GE(Clock::now() - begun, std::chrono::seconds(1) - kGivenAtATime);
    EXPECT_EQ(sound->Place().Cursor, format.Rate - 1);
}

TEST_F(PulseTest, TheCursorRunsAndNeverGoesBack)
{
    SoundHandle sound = Opened(output, format, Samples(format, 5 * format.Rate));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    std::int32_t cursor = 0;
    int moves = 0;
    EXPECT_TRUE(Comes([&] {
        const SoundPlace place = sound->Place();
        EXPECT_GE(place.Cursor, cursor);
        moves += place.Cursor > cursor;
        cursor = place.Cursor;
        return moves > 100 || !place.Playing;
    }));
    EXPECT_GT(moves, 100);
}

TEST_F(PulseTest, TheCursorOfALoopCountsWithinThePass)
{
    SoundHandle sound = Opened(output, format, Samples(format, 5000));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    std::int32_t cursor = 0;
    for (int pass = 0; pass < 3; ++pass)
        EXPECT_TRUE(Comes([&] {
            const std::int32_t before = std::exchange(cursor, sound->Place().Cursor);
            return cursor < before;
        }));
    EXPECT_TRUE(sound->Place().Playing);
}

TEST_F(PulseTest, ALoopHasNoGap)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 1001);
    SoundHandle sound = Playing(samples, Loop::Yes, recording);
    ASSERT_TRUE(sound);
    EXPECT_TRUE(recording.Holds(Repeated(samples, 60 * samples.size())));
    EXPECT_TRUE(sound->Place().Playing);
}

TEST_F(PulseTest, ALoopSwitchedOffEndsWithTheHeardPassThoughMoreIsQueued)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, format.Rate * 3 / 2); // a third of the next pass is queued too
    SoundHandle sound = Playing(samples, Loop::Yes, recording);
    ASSERT_TRUE(sound);
    sound->SetLooping(Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    EXPECT_TRUE(Same(recording.Sounded(), samples));
}

TEST_F(PulseTest, ALoopSwitchedOffAndOnAgainHasNoGap)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 20000);
    SoundHandle sound = Playing(samples, Loop::Yes, recording);
    ASSERT_TRUE(sound);
    sound->SetLooping(Loop::No);
    sound->SetLooping(Loop::Yes);
    EXPECT_TRUE(recording.Holds(Repeated(samples, 3 * samples.size())));
}

TEST_F(PulseTest, LoopingSwitchedOnBehindWhatIsQueuedHasNoGap)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 10000); // all of it is queued at the server, followed by silence
    SoundHandle sound = Playing(samples, Loop::No, recording);
    ASSERT_TRUE(sound);
    sound->SetLooping(Loop::Yes);
    EXPECT_TRUE(recording.Holds(Repeated(samples, 4 * samples.size())));
}

TEST_F(PulseTest, AStopIsKnownAtOnceAndSilent)
{
    TestRecording recording(server);
    SoundHandle sound = Playing(Samples(format, 44100), Loop::Yes, recording);
    ASSERT_TRUE(sound);
    sound->Stop();
    EXPECT_FALSE(sound->Place().Playing);
    EXPECT_TRUE(Comes([this] { return server.HasStoppedInput(); }));
    EXPECT_TRUE(recording.CatchesUp());
    EXPECT_LT(recording.Sounded().size(), kQueue); // which was not played
}

TEST_F(PulseTest, PausesLoseNoFrameAndRepeatNone)
{
    TestRecording recording(server);
    constexpr int kFrames = 100001;
    const Bytes samples = Samples(format, kFrames);
    SoundHandle sound = Playing(samples, Loop::No, recording);
    ASSERT_TRUE(sound);
    for (int pause = 0; pause < 4; ++pause) {
        EXPECT_TRUE(recording.Grows(17640));
        sound->Stop();
        EXPECT_TRUE(Comes([this] { return server.HasStoppedInput(); }));
        EXPECT_TRUE(recording.CatchesUp());
        const auto heard = std::ssize(WithoutSilence(recording.Sounded())) / format.FrameBytes();
        EXPECT_EQ(sound->Place().Cursor, std::min<std::ptrdiff_t>(heard, kFrames - 1));
        sound->Start(StartFrom::WhereItStopped, Loop::No);
    }
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    const Bytes sounded = recording.Sounded();
    EXPECT_GT(sounded.size(), samples.size()); // because of the pauses
    EXPECT_TRUE(Same(WithoutSilence(sounded), samples));
}

TEST_F(PulseTest, PausesThatAreOverAtOnceLoseNoFrame)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 30000);
    SoundHandle sound = Playing(samples, Loop::No, recording);
    ASSERT_TRUE(sound);
    constexpr std::size_t kPauses = 3;
    for (std::size_t pause = 0; pause < kPauses; ++pause) {
        sound->Stop();
        sound->Start(StartFrom::WhereItStopped, Loop::No);
    }
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    const Bytes sounded = WithoutSilence(recording.Sounded());
    const auto tail = static_cast<std::ptrdiff_t>(samples.size() / 2);
    EXPECT_TRUE(std::equal(samples.end() - tail, samples.end(), sounded.end() - tail));
    // After such a short pause the server may give the device the same data again.
    EXPECT_GE(sounded.size(), samples.size());
    EXPECT_LT(sounded.size(), samples.size() + kPauses * 2 * 1764);
}

TEST_F(PulseTest, ALoopThatGoesOnWithoutLoopingEndsWithItsPass)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 10000);
    SoundHandle sound = Playing(samples, Loop::Yes, recording);
    ASSERT_TRUE(sound);
    sound->Stop();
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    const Bytes sounded = WithoutSilence(recording.Sounded());
    EXPECT_TRUE(Same(sounded, Repeated(samples, sounded.size())));
    EXPECT_EQ(sounded.size() % samples.size(), 0U);
}

TEST_F(PulseTest, ASoundThatHasEndedDoesNotGoOnAndStartsAnew)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 3000);
    SoundHandle sound = Playing(samples, Loop::No, recording);
    ASSERT_TRUE(sound);
    EXPECT_TRUE(Ends(sound));
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_FALSE(sound->Place().Playing);
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(sound->Place().Playing);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    EXPECT_TRUE(Same(WithoutSilence(recording.Sounded()), Repeated(samples, 2 * samples.size())));
}

TEST_F(PulseTest, TheStreamStopsSoonAfterASoundHasEnded)
{
    PulseSoundOutput tireless(std::chrono::hours(1));
    SoundHandle sound = Opened(tireless, format, Samples(format, 3000));
    ASSERT_TRUE(sound);
    EXPECT_TRUE(server.HasStoppedInput());
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(Comes([this] { return server.HasStoppedInput(); }));
}

TEST_F(PulseTest, TheStreamRunsOnBehindAnEndUntilTheNextPlay)
{
    PulseSoundOutput running(std::chrono::hours(1), std::chrono::hours(1));
    SoundHandle sound;
    for (unsigned play = 1; play <= 3; ++play) {
        TestRecording recording(server);
        const Bytes samples = Samples(format, 3001, play);
        sound = Opened(running, format, samples, std::move(sound));
        ASSERT_TRUE(sound);
        sound->Start(StartFrom::Beginning, Loop::No);
        EXPECT_TRUE(Ends(sound));
        EXPECT_FALSE(server.HasStoppedInput());
        EXPECT_TRUE(recording.CatchesUp());
        EXPECT_TRUE(Same(recording.Sounded(), samples));
        sound->Stop();
        EXPECT_FALSE(sound->Place().Playing);
    }
}

TEST_F(PulseTest, TheNextSoundCutsTheFirstOffAndIsHeardWhole)
{
    TestRecording recording(server);
    SoundHandle sound = Playing(Samples(format, 44100), Loop::Yes, recording);
    ASSERT_TRUE(sound);
    const Bytes samples = Samples(format, 30000, 7);
    sound = Opened(output, format, samples, std::move(sound));
    sound->Start(StartFrom::Beginning, Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.CatchesUp());
    const Bytes sounded = recording.Sounded();
    EXPECT_LT(sounded.size(), samples.size() + kQueue); // the first one's queue was not played
    ASSERT_GE(sounded.size(), samples.size());
    EXPECT_TRUE(std::equal(samples.rbegin(), samples.rend(), sounded.rbegin()));
}

TEST_F(PulseTest, AnEmptySoundDoesNotPlay)
{
    SoundHandle sound = Opened(output, format, Bytes());
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::Yes);
    EXPECT_FALSE(sound->Place().Playing);
    EXPECT_EQ(sound->Place().Cursor, 0);
}

TEST_F(PulseTest, TellsWhenTheDeviceTookTheFirstFrame)
{
    SoundHandle sound = Opened(output, format, Samples(format, 20000));
    ASSERT_TRUE(sound);
    auto& object = static_cast<PulseSound&>(*sound);
    for (int play = 0; play < 3; ++play) {
        const auto begun = Clock::now();
        sound->Start(StartFrom::Beginning, Loop::No);
        EXPECT_TRUE(Comes([&] { return object.FirstTaken().has_value(); }));
        EXPECT_GE(object.FirstTaken().value_or(Clock::time_point()), begun);
    }
}

} // namespace
} // namespace sprout
