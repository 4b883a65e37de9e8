// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Log.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <string>

#include "base/Errors.h"
#include "base/Guarded.h"

namespace sprout {
namespace {

/// Runs with a value of SPROUT_LOG and keeps what is written to standard error.
class LogTest : public testing::Test {
protected:
    ~LogTest() override { ::unsetenv("SPROUT_LOG"); }

    template <class Work>
    static std::string Logged(const char* wish, Work work)
    {
        ::setenv("SPROUT_LOG", wish, 1);
        testing::internal::CaptureStderr();
        work();
        return testing::internal::GetCapturedStderr();
    }
};

TEST_F(LogTest, WritesALineOnlyIfItIsWanted)
{
    const auto work = [] { Log("The disk is full."); };
    EXPECT_EQ(Logged("1", work), "sprout: The disk is full.\n");
    EXPECT_EQ(Logged("0", work), "");
    EXPECT_EQ(Logged("", work), "");
    testing::internal::CaptureStderr();
    ::unsetenv("SPROUT_LOG");
    work();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(LogTest, EscapesControlCharactersAndKeepsLetters)
{
    EXPECT_EQ(Logged("1", [] { Log("a\nb\x1B[2J\x7F \xC3\xBC"); }), "sprout: a\\x0ab\\x1b[2J\\x7f \xC3\xBC\n");
}

TEST_F(LogTest, TellsWhatFailedAndWhy)
{
    const RunTimeError error(Words::Text("The file %1 was not found.", "a\nb"));
    EXPECT_EQ(Logged("1", [&] { LogFailure("Reading", error); }), "sprout: Reading: The file a\\x0ab was not found.\n");
}

TEST_F(LogTest, GetsALineFromAQuietGuardThatFailed)
{
    bool failed = true;
    bool succeeded = false;
    const std::string logged = Logged("1", [&] {
        failed = !GuardedQuietly("Drawing", [] { throw RunTimeError(Words::Text("No colour.")); });
        succeeded = GuardedQuietly("Painting", [] {});
    });
    EXPECT_TRUE(failed);
    EXPECT_TRUE(succeeded);
    EXPECT_EQ(logged, "sprout: Drawing: No colour.\n");
}

TEST_F(LogTest, GetsNothingFromAGuardThatTells)
{
    std::string told;
    EXPECT_EQ(Logged("1",
                     [&told] {
                         GuardedBy([&told](const std::exception& error) { told = error.what(); },
                                   [] { throw RunTimeError(Words::Text("No colour.")); });
                     }),
              "");
    EXPECT_EQ(told, "No colour.");
}

TEST(GuardedBy, LetsItsTellerThrowTheErrorAgain)
{
    EXPECT_THROW(GuardedBy([](const std::exception&) { throw; }, [] { throw RunTimeError(Words::Text("Stop.")); }),
                 RunTimeError);
}

TEST(GuardedBy, LetsAStopOfTheUserPass)
{
    EXPECT_THROW(GuardedBy([](const std::exception&) {}, [] { throw WorkStopped(); }), WorkStopped);
}

} // namespace
} // namespace sprout
