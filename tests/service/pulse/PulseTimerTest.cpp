// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseTimer.h"

#include <gtest/gtest.h>

#include "service/pulse/TestSoundServer.h"

namespace sprout {
namespace {

using std::chrono::milliseconds;

class PulseTimerTest : public ::testing::Test {
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

    TestSoundServer server;
    PulseConnection connection;
    int calls = 0;
};

TEST_F(PulseTimerTest, CallsWhenTheTimeIsOverAndStaysStarted)
{
    PulseConnection::Lock lock(connection.Mutex());
    PulseTimer timer(connection, [this] {
        ++calls;
        connection.Notify();
    });
    EXPECT_FALSE(timer.IsStarted());
    const auto begun = std::chrono::steady_clock::now();
    timer.Start(milliseconds(30));
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(timer.IsStarted());
    EXPECT_TRUE(Comes(lock, [this] { return calls == 1; }));
    EXPECT_GE(std::chrono::steady_clock::now() - begun, milliseconds(29));
    EXPECT_TRUE(timer.IsStarted());
    timer.Stop();
    EXPECT_FALSE(timer.IsStarted());
}

TEST_F(PulseTimerTest, CanBeStartedAgainAndStoppedInItsOwnCall)
{
    PulseConnection::Lock lock(connection.Mutex());
    PulseTimer timer(connection, [&] {
        if (++calls < 3)
            timer.Start(milliseconds(1));
        else
            timer.Stop();
        connection.Notify();
    });
    timer.Start(milliseconds(1));
    EXPECT_TRUE(Comes(lock, [&] { return !timer.IsStarted(); }));
    EXPECT_EQ(calls, 3);
}

TEST_F(PulseTimerTest, AStoppedOneDoesNotCall)
{
    PulseConnection::Lock lock(connection.Mutex());
    bool isLaterOver = false;
    PulseTimer timer(connection, [this] { ++calls; });
    PulseTimer later(connection, [&] {
        isLaterOver = true;
        connection.Notify();
    });
    timer.Start(milliseconds(5));
    later.Start(milliseconds(30));
    timer.Stop();
    EXPECT_TRUE(Comes(lock, [&] { return isLaterOver; }));
    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace sprout
