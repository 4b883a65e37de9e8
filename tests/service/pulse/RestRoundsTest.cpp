// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/RestRounds.h"

#include <gtest/gtest.h>

#include "service/pulse/TestSoundServer.h"

namespace sprout {
namespace {

using std::chrono::milliseconds;

class RestRoundsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(server.Start());
        PulseConnection::Lock lock(connection.Mutex());
        ASSERT_EQ(connection.Connect(lock, ServerDeadline()), ServerAnswer::Yes);
    }

    /// Waits until `condition` holds.
    template <class Condition>
    bool Comes(PulseConnection::Lock& lock, Condition condition)
    {
        return connection.WaitFor(lock, std::chrono::steady_clock::now() + std::chrono::seconds(30), condition);
    }

    /// Counts the rounds; the first `usedRounds` of them are in use.
    bool OnRound()
    {
        connection.Notify();
        return ++asked <= usedRounds;
    }

    TestSoundServer server;
    PulseConnection connection;
    int usedRounds = 0;
    int asked = 0;
    int rests = 0;
    RestRounds rounds{connection, milliseconds(1), [this] { return OnRound(); }, [this] { ++rests; }};
};

TEST_F(RestRoundsTest, ThreeRoundsWithoutUseAreARestAndTheLast)
{
    PulseConnection::Lock lock(connection.Mutex());
    usedRounds = 2;
    rounds.Start();
    EXPECT_TRUE(Comes(lock, [this] { return rests == 1; }));
    EXPECT_EQ(asked, 5);
    bool isLaterOver = false;
    PulseTimer later(connection, [&] {
        isLaterOver = true;
        connection.Notify();
    });
    later.Start(milliseconds(30));
    EXPECT_TRUE(Comes(lock, [&] { return isLaterOver; }));
    EXPECT_EQ(asked, 5);
    EXPECT_EQ(rests, 1);
}

TEST_F(RestRoundsTest, AUseBetweenTwoRoundsCounts)
{
    PulseConnection::Lock lock(connection.Mutex());
    rounds.NoteUse();
    rounds.Start();
    EXPECT_TRUE(Comes(lock, [this] { return rests == 1; }));
    EXPECT_EQ(asked, 4);
}

TEST_F(RestRoundsTest, AStartCountsAnew)
{
    PulseConnection::Lock lock(connection.Mutex());
    RestRounds startedAgain(
        connection, milliseconds(1),
        [&] {
            if (++asked == 3)
                startedAgain.Start();
            connection.Notify();
            return false;
        },
        [this] { ++rests; });
    startedAgain.Start();
    EXPECT_TRUE(Comes(lock, [this] { return rests == 1; }));
    EXPECT_EQ(asked, 5);
}

TEST_F(RestRoundsTest, StoppedOnesRestNever)
{
    PulseConnection::Lock lock(connection.Mutex());
    bool isLaterOver = false;
    PulseTimer later(connection, [&] {
        isLaterOver = true;
        connection.Notify();
    });
    RestRounds stoppedByUse(
        connection, milliseconds(1),
        [&] {
            ++asked;
            stoppedByUse.Stop();
            return false;
        },
        [this] { ++rests; });
    stoppedByUse.Start();
    rounds.Start();
    rounds.Stop();
    later.Start(milliseconds(30));
    EXPECT_TRUE(Comes(lock, [&] { return isLaterOver; }));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(rests, 0);
}

} // namespace
} // namespace sprout
