// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/ScriptActions.h"

#include <gtest/gtest.h>

#include <QApplication>

#include <string>
#include <vector>

#include "base/Errors.h"
#include "core/Shared.h"
#include "support/TestFolder.h"
#include "tutorial/DemoProgram.h"
#include "tutorial/HeldTimers.h"
#include "tutorial/Places.h"

namespace sprout {
namespace {

class ScriptActionsTest : public testing::Test {
protected:
    TestFolder folder;
    HeldTimers timers;
    DemoProgram program{SPROUT_INSTALLED, folder.Path()};
    ScriptActions actions{program};
};

TEST_F(ScriptActionsTest, PointAndDragAsTheUserDoes)
{
    Track& track = At(Shared().Song.Tracks, 2);
    track.Painted.assign(track.Painted.size(), 0);
    const QRect end = FindPlace({"cell", "2", "30"});
    const QRect begin = actions.PointAt({"cell", "2", "10"});
    EXPECT_EQ(begin, FindPlace({"cell", "2", "10"}));
    actions.BeginDrag(begin);
    actions.EndDrag(begin, end);
    EXPECT_TRUE(track.IsPainted(10));
    EXPECT_TRUE(track.IsPainted(30));
    EXPECT_FALSE(track.IsPainted(31));
}

TEST_F(ScriptActionsTest, TakeStepsInTheWindowsThatTheyOpen)
{
    const std::vector<ScriptStep> steps =
        ReadPictureScript("click SongTitleChgBtn\ntype Rain\nclick OkBtn\nclick SongTitleChgBtn\npress Escape\n");
    DoSteps("title", steps, [this](const ScriptStep& step) {
        if (step.Verb != ScriptVerb::Click)
            return actions.Prepare(step);
        static_cast<void>(actions.PointAt(step.Target));
        actions.Click();
    });
    EXPECT_EQ(Shared().Song.SongTitle, "Rain");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ScriptActionsTest, EndAtTheStepThatFails)
{
    const std::vector<ScriptStep> steps = ReadPictureScript("press Home\n\ntick NoSuchTimer\npress End\n");
    std::vector<int> lines;
    try {
        DoSteps("try", steps, [this, &lines](const ScriptStep& step) {
            lines.push_back(step.Line);
            actions.Prepare(step);
        });
        FAIL();
    } catch (const RunTimeError& error) {
        EXPECT_STREQ(error.what(), "try, line 3: No timer NoSuchTimer runs.");
    }
    EXPECT_EQ(lines, (std::vector<int>{1, 3}));
}

} // namespace
} // namespace sprout
