// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/forms/Guarded.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "base/Errors.h"
#include "support/FakeServices.h"

namespace sprout {
namespace {

/// Keeps the order in which things happen.
class GuardedTest : public testing::Test {
protected:
    class NotedMessages : public Messages {
    public:
        explicit NotedMessages(std::vector<std::string>& events) : noted(events) {}
        void MessageBox(const Words& /*title*/, const Words& text, MessageIcon /*icon*/) override
        {
            noted.push_back(text.English());
        }

    private:
        std::vector<std::string>& noted;
    };

    GuardedTest() { TheServices().messages = &messages; }

    FakeServices services;
    std::vector<std::string> noted;
    NotedMessages messages{noted};
};

TEST_F(GuardedTest, TellsWhatWentWrong)
{
    EXPECT_FALSE(Guarded([] { throw RunTimeError(Words::AsIs("No room.")); }));
    EXPECT_TRUE(Guarded([this] { noted.emplace_back("done"); }));
    EXPECT_THAT(noted, testing::ElementsAre("No room.", "done"));
}

TEST_F(GuardedTest, PutsTheReasonIntoItsOwnText)
{
    const LaterWords failed = Words::Later("Error Saving file\r\n%1");
    EXPECT_FALSE(Guarded(failed, [] { throw RunTimeError(Words::AsIs("No room.")); }));
    EXPECT_TRUE(Guarded(failed, [] {}));
    EXPECT_THAT(noted, testing::ElementsAre("Error Saving file\r\nNo room."));
}

TEST_F(GuardedTest, EndsWhatWouldFailAgainBeforeTheBoxOpens)
{
    GuardedOnce([] { throw RunTimeError(Words::AsIs("No room.")); }, [this] { noted.emplace_back("timer stopped"); });
    GuardedOnce([] {}, [this] { noted.emplace_back("not stopped"); });
    EXPECT_THAT(noted, testing::ElementsAre("timer stopped", "No room."));
}

} // namespace
} // namespace sprout
