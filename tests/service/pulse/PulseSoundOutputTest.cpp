// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSoundOutput.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>

#include "service/pulse/PulseSound.h"
#include "service/pulse/TestSoundServer.h"

namespace sprout {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// Samples without silent bytes, different enough that no frame can be taken for another.
Bytes Samples(const SoundFormat& format, int frames, unsigned seed = 1)
{
    Bytes bytes;
    unsigned value = seed;
    for (int i = 0; i < frames * format.FrameBytes(); ++i) {
        value = value * 1103515245 + 12345;
        bytes.push_back(static_cast<std::byte>(1 + (value >> 16) % 127));
    }
    return bytes;
}

Bytes Repeated(const Bytes& samples, std::size_t bytes)
{
    Bytes repeated;
    repeated.reserve(bytes);
    for (std::size_t i = 0; i < bytes; ++i)
        repeated.push_back(samples[i % samples.size()]);
    return repeated;
}

/// Whether two sounds are equal, and where they differ.
::testing::AssertionResult Same(const Bytes& one, const Bytes& other)
{
    if (one == other)
        return ::testing::AssertionSuccess();
    const auto differing = std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first - one.begin();
    return ::testing::AssertionFailure() << one.size() << " and " << other.size() << " bytes differ from byte "
                                         << differing << " on";
}

/// What was heard, without the silence, which the samples do not contain.
Bytes WithoutSilence(Bytes bytes)
{
    bytes.erase(std::remove(bytes.begin(), bytes.end(), std::byte{0}), bytes.end());
    return bytes;
}

/// Returns true as soon as `condition` holds; false if that takes too long. It checks as often as the windows do.
bool Comes(const std::function<bool()>& condition)
{
    const auto latest = Clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (Clock::now() > latest)
            return false;
        std::this_thread::sleep_for(milliseconds(1));
    }
    return true;
}

bool Ends(const SoundHandle& sound)
{
    return Comes([&] { return !sound->Place().Playing; });
}

/// An open, silent sound of `samples`.
SoundHandle Opened(SoundOutput& output, const SoundFormat& format, const Bytes& samples, SoundHandle old = nullptr)
{
    SoundHandle sound = output.Open(std::move(old), 0, format, static_cast<std::int32_t>(samples.size()));
    if (sound)
        sound->Load(samples);
    return sound;
}

/// A server whose device has the program's own format and plays what it is given.
class PulseTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server.Start()); }

    /// A playing sound of `samples`, part of which was already heard.
    SoundHandle Playing(const Bytes& samples, Loop loop, TestRecording& recording)
    {
        SoundHandle sound = Opened(output, format, samples);
        if (sound)
            sound->Start(StartFrom::Beginning, loop);
        return sound && recording.Sounds() ? std::move(sound) : nullptr;
    }

    const SoundFormat format;
    TestSoundServer server{format};
    PulseSoundOutput output;
};

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
                const Bytes samples = Samples(format, rate * 7 / 10); // longer than the queue
                SoundHandle sound = Opened(output, format, samples);
                ASSERT_TRUE(sound);
                sound->Start(StartFrom::Beginning, Loop::No);
                EXPECT_TRUE(recording.Holds(samples));
                EXPECT_TRUE(Ends(sound));
                EXPECT_TRUE(Same(recording.Sounded(), samples));
            }
}

TEST_F(PulseTest, CountsTheServersDevices)
{
    EXPECT_EQ(output.SoundDeviceCount(), 1);
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
    EXPECT_GE(Clock::now() - begun, std::chrono::seconds(1));
    EXPECT_EQ(sound->Place().Cursor, format.Rate - 1);
}

TEST_F(PulseTest, TheCursorRunsAndNeverGoesBack)
{
    SoundHandle sound = Opened(output, format, Samples(format, format.Rate));
    ASSERT_TRUE(sound);
    sound->Start(StartFrom::Beginning, Loop::No);
    std::int32_t cursor = 0;
    int moves = 0;
    EXPECT_TRUE(Comes([&] {
        const SoundPlace place = sound->Place();
        EXPECT_GE(place.Cursor, cursor);
        moves += place.Cursor > cursor;
        cursor = place.Cursor;
        return !place.Playing;
    }));
    EXPECT_GT(moves, 20);
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
    const Bytes samples = Samples(format, 8820); // 200 ms: two more passes are queued at the server
    SoundHandle sound = Playing(samples, Loop::Yes, recording);
    ASSERT_TRUE(sound);
    EXPECT_TRUE(recording.Holds(Repeated(samples, samples.size() + 4000)));
    const std::int32_t frame = sound->Place().Cursor;
    sound->SetLooping(Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.Grows(88200)); // as long as the queue
    const Bytes sounded = recording.Sounded();
    EXPECT_TRUE(Same(sounded, Repeated(samples, sounded.size())));
    EXPECT_EQ(sounded.size() % samples.size(), 0U);
    // This thread may have been delayed until the next pass.
    EXPECT_LE(sounded.size(), (frame < 5000 ? 3 : 4) * samples.size());
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
    EXPECT_TRUE(recording.Grows(88200));
    EXPECT_LT(recording.Sounded().size(), 88200U); // the queue was not played
}

TEST_F(PulseTest, PausesLoseNoFrameAndRepeatNone)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 50001);
    SoundHandle sound = Playing(samples, Loop::No, recording);
    ASSERT_TRUE(sound);
    for (int pause = 0; pause < 4; ++pause) {
        EXPECT_TRUE(recording.Grows(17640));
        const auto begun = Clock::now();
        sound->Stop();
        const std::int32_t stoppedAt = sound->Place().Cursor;
        const std::chrono::duration<double> took = Clock::now() - begun; // this thread may have been delayed
        EXPECT_TRUE(recording.Grows(17640));
        EXPECT_NEAR(sound->Place().Cursor, stoppedAt, 2205 + took.count() * 44100);
        sound->Start(StartFrom::WhereItStopped, Loop::No);
    }
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.Grows(8820));
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
    EXPECT_TRUE(recording.Grows(8820));
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
    EXPECT_TRUE(recording.Grows(88200));
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
    EXPECT_TRUE(recording.Grows(8820));
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
        EXPECT_TRUE(recording.Grows(8820));
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
    EXPECT_TRUE(recording.Holds(samples));
    EXPECT_TRUE(Ends(sound));
    const Bytes sounded = recording.Sounded();
    EXPECT_LT(sounded.size(), samples.size() + 88200); // the first one's queue was not played
    EXPECT_TRUE(std::equal(samples.rbegin(), samples.rend(), sounded.rbegin()));
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
    EXPECT_TRUE(recording.Grows(8820));
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
    EXPECT_TRUE(recording.Grows(88200));
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
    const std::int32_t stoppedAt = sound->Place().Cursor;
    EXPECT_TRUE(recording.Grows(17640));
    EXPECT_NEAR(sound->Place().Cursor, stoppedAt, 882);
    const Bytes before = recording.Sounded();
    sound->Start(StartFrom::WhereItStopped, Loop::No);
    EXPECT_TRUE(Ends(sound));
    EXPECT_TRUE(recording.Grows(8820));
    const Bytes sounded = recording.Sounded();
    EXPECT_TRUE(EndsWith(sounded, Bytes(samples.end() - 88200, samples.end())));
    EXPECT_NEAR(static_cast<double>(WithoutSilence(sounded).size()), static_cast<double>(samples.size()),
                3.0 * kGivenBack);
}

/// Streams that soon go to rest.
class PulseRestTest : public PulseTest {
protected:
    [[nodiscard]] bool Rests() const
    {
        return Comes([this] { return server.Inputs().empty(); });
    }

    PulseSoundOutput resting{milliseconds(20)};
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
    EXPECT_TRUE(recording.Grows(8820));
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
