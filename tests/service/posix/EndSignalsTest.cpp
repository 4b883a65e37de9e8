// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/posix/EndSignals.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace sprout {
namespace {

/// Takes the bytes out of the pipe and counts them.
ssize_t BytesTold(const EndSignals& signals)
{
    std::array<char, 16> bytes{};
    const ssize_t count = ::read(signals.Number(), bytes.data(), bytes.size());
    return count < 0 && errno == EAGAIN ? 0 : count;
}

TEST(EndSignals, TellEachSignalThatAsksForTheEnd)
{
    const EndSignals signals;
    EXPECT_EQ(BytesTold(signals), 0);
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        ASSERT_EQ(::raise(signal), 0);
        EXPECT_EQ(BytesTold(signals), 1) << signal;
    }
}

TEST(EndSignals, LeaveAnIgnoredSignalIgnored)
{
    ::signal(SIGHUP, SIG_IGN);
    {
        const EndSignals signals;
        ASSERT_EQ(::raise(SIGHUP), 0);
        EXPECT_EQ(BytesTold(signals), 0);
    }
    ASSERT_EQ(::raise(SIGHUP), 0);
    ::signal(SIGHUP, SIG_DFL);
}

TEST(EndSignals, LeaveTheErrorOfTheWorkThatTheyInterrupt)
{
    const EndSignals signals;
    constexpr int moreThanAPipeHolds = 100'000;
    for (int i = 0; i < moreThanAPipeHolds; ++i)
        ASSERT_EQ(::raise(SIGTERM), 0);
    errno = ENOENT;
    ASSERT_EQ(::raise(SIGTERM), 0);
    EXPECT_EQ(errno, ENOENT);
}

TEST(EndSignalsDeathTest, EndTheProgramAgainWhenNobodyListensAnyMore)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            {
                const EndSignals signals;
            }
            ::raise(SIGTERM);
        },
        testing::KilledBySignal(SIGTERM), "");
}

} // namespace
} // namespace sprout
