// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulsePlaybackStream.h"

#include <gtest/gtest.h>

#include <vector>

#include "service/pulse/PulsePlay.h"

namespace sprout {
namespace {

/// A stream at a server, and what it reports.
class PulsePlaybackStreamTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.Start());
        ASSERT_TRUE(Open());
    }
    void TearDown() override
    {
        const PulseConnection::Lock lock(connection.Mutex());
        stream.Close();
    }

    bool Open()
    {
        PulseConnection::Lock lock(connection.Mutex());
        return connection.Connect(lock, ServerDeadline()) == ServerAnswer::Yes && stream.Open(lock, ServerDeadline());
    }

    /// Waits until `condition` holds after an event.
    template <class Condition>
    bool Comes(PulseConnection::Lock& lock, Condition condition)
    {
        return connection.WaitFor(lock, std::chrono::steady_clock::now() + std::chrono::seconds(30), condition);
    }

    PulsePlaybackStream::Events Events()
    {
        const auto count = [this](int& events) {
            return [this, &events] {
                ++events;
                connection.Notify();
            };
        };
        return {count(lost), count(started), count(timed), count(wanted),
                [this](TimingQuestion question, const StreamTiming& timing) {
                    answers.push_back(question);
                    taken = timing.Taken;
                    connection.Notify();
                }};
    }

    const SoundFormat format;
    TestSoundServer server{format};
    PulseConnection connection;
    int lost = 0;
    int started = 0;
    int timed = 0;
    int wanted = 0;
    std::vector<TimingQuestion> answers;
    std::int64_t taken = 0;
    PulsePlaybackStream stream{connection, format, Events()};
};

TEST_F(PulsePlaybackStreamTest, OpensStoppedAndGivesTheDeviceWhatIsWrittenWhenItRuns)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 10000);
    SoundQueue queue(format);
    queue.Load(samples, samples.size());
    queue.Start(0, Loop::No);
    {
        PulseConnection::Lock lock(connection.Mutex());
        EXPECT_TRUE(stream.IsReady());
        stream.Write(queue, samples.size() + 8820);
        EXPECT_EQ(started, 0);
        stream.Run();
        EXPECT_TRUE(Comes(lock, [this] { return started == 1; }));
    }
    EXPECT_TRUE(recording.Holds(samples));
}

TEST_F(PulsePlaybackStreamTest, WhatIsWrittenBackwardsReplacesTheLastBytes)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 10000);
    SoundQueue queue(format);
    queue.Load(samples, samples.size());
    queue.Start(0, Loop::No);
    {
        PulseConnection::Lock lock(connection.Mutex());
        stream.Write(queue, samples.size());
        queue.Start(20000, Loop::No);
        stream.Write(queue, 20000, -20000);
        stream.Run();
    }
    EXPECT_TRUE(recording.Holds(samples));
    EXPECT_TRUE(Same(recording.Sounded(), samples));
}

TEST_F(PulsePlaybackStreamTest, FlushedBytesAreNotHeard)
{
    TestRecording recording(server);
    const Bytes samples = Samples(format, 5000);
    SoundQueue queue(format);
    queue.Load(samples, samples.size());
    {
        PulseConnection::Lock lock(connection.Mutex());
        queue.Start(0, Loop::Yes);
        stream.Write(queue, 30000);
        stream.Flush();
        queue.Start(0, Loop::No);
        stream.Write(queue, samples.size());
        stream.Run();
    }
    EXPECT_TRUE(recording.Holds(samples));
    EXPECT_TRUE(Same(recording.Sounded(), samples));
}

TEST_F(PulsePlaybackStreamTest, QuestionsAreAnsweredInTheirOrder)
{
    PulseConnection::Lock lock(connection.Mutex());
    EXPECT_TRUE(stream.Ask(TimingQuestion::AtStop));
    EXPECT_TRUE(stream.Ask(TimingQuestion::AtStart));
    EXPECT_TRUE(stream.IsAsked(TimingQuestion::AtStart));
    EXPECT_FALSE(stream.IsAsked(TimingQuestion::AtEnd));
    EXPECT_TRUE(Comes(lock, [this] { return answers.size() == 2; }));
    EXPECT_EQ(answers, (std::vector{TimingQuestion::AtStop, TimingQuestion::AtStart}));
    EXPECT_FALSE(stream.IsAsked(TimingQuestion::AtStart));
    EXPECT_GT(timed, 0);
}

TEST_F(PulsePlaybackStreamTest, ForgottenQuestionsAreNotReportedAndLaterOnesAre)
{
    PulseConnection::Lock lock(connection.Mutex());
    EXPECT_TRUE(stream.Ask(TimingQuestion::AtStart));
    stream.ForgetQuestions();
    EXPECT_FALSE(stream.IsAsked(TimingQuestion::AtStart));
    EXPECT_TRUE(stream.Ask(TimingQuestion::AtEnd));
    EXPECT_TRUE(Comes(lock, [this] { return !answers.empty(); }));
    EXPECT_EQ(answers, std::vector{TimingQuestion::AtEnd});
}

TEST_F(PulsePlaybackStreamTest, TheTimingCountsWhatTheDeviceHasTaken)
{
    SoundQueue queue(format);
    queue.Load(Samples(format, 1000), 4000);
    queue.Start(0, Loop::Yes);
    PulseConnection::Lock lock(connection.Mutex());
    stream.WriteWanted(queue);
    EXPECT_GE(queue.Filled(), BytesOf(format, kQueuedAtServer));
    stream.Run();
    EXPECT_TRUE(Comes(lock, [this] { return started > 0; }));
    while (taken == 0) {
        const auto before = answers.size();
        ASSERT_TRUE(stream.Ask(TimingQuestion::AtEnd));
        ASSERT_TRUE(Comes(lock, [&] { return answers.size() > before; }));
    }
    const auto timing = stream.Timing();
    ASSERT_TRUE(timing);
    EXPECT_GE(timing->Taken, taken);
    EXPECT_LE(timing->Time, std::chrono::steady_clock::now());
    EXPECT_GT(timing->Given.count(), 0);
}

TEST_F(PulsePlaybackStreamTest, AClosedOneReportsNothingAndCanBeOpenedAgain)
{
    {
        const PulseConnection::Lock lock(connection.Mutex());
        EXPECT_TRUE(stream.Ask(TimingQuestion::AtStart));
        stream.Close();
        EXPECT_FALSE(stream.IsOpen());
        EXPECT_FALSE(stream.IsReady());
        EXPECT_FALSE(stream.IsAsked(TimingQuestion::AtStart));
    }
    EXPECT_TRUE(Open());
    PulseConnection::Lock lock(connection.Mutex());
    EXPECT_TRUE(stream.Ask(TimingQuestion::AtEnd));
    EXPECT_TRUE(Comes(lock, [this] { return !answers.empty(); }));
    EXPECT_EQ(answers, std::vector{TimingQuestion::AtEnd});
}

TEST_F(PulsePlaybackStreamTest, TheServersDeathIsReportedOnce)
{
    server.Kill();
    PulseConnection::Lock lock(connection.Mutex());
    EXPECT_TRUE(Comes(lock, [this] { return lost > 0; }));
    EXPECT_EQ(lost, 1);
    EXPECT_TRUE(stream.IsOpen());
    EXPECT_FALSE(stream.IsReady());
    EXPECT_FALSE(stream.Ask(TimingQuestion::AtStop));
}

} // namespace
} // namespace sprout
