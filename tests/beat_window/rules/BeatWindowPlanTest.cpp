// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/rules/BeatWindowPlan.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

BeatWindowNeeds Needs(std::int32_t beats = 10, int screenHeight = 900)
{
    BeatWindowNeeds needs;
    needs.screenHeight = screenHeight;
    needs.bandHeight = 26;
    needs.gridFrame = {510, 12};
    needs.beats = beats;
    needs.choosenPic = {72, 72};
    needs.testPlayBtn = {48, 48};
    needs.columnWidth = 110;
    needs.columnHeights = {40, 41, 42};
    needs.helpHeight = 40;
    needs.okBtn = {84, 40};
    needs.cancelBtn = {90, 40};
    return needs;
}

TEST(PlanBeatWindow, GivesTheGridEightRowsOrMoreIfTheBeatsNeedThemAndTheScreenHasRoom)
{
    EXPECT_EQ(PlanBeatWindow(Needs(1)).gridRows, 8);
    EXPECT_EQ(PlanBeatWindow(Needs(7 * 12)).gridRows, 8);
    EXPECT_EQ(PlanBeatWindow(Needs(7 * 12 + 1)).gridRows, 9) << "the last row stays free";
    const int beside = 26 + 38 + 12 + 40 + 24;
    EXPECT_EQ(PlanBeatWindow(Needs(1000, beside + 10 * 40)).gridRows, 10);
    EXPECT_EQ(PlanBeatWindow(Needs(1000, beside + 10 * 40 - 1)).gridRows, 9);
    EXPECT_EQ(PlanBeatWindow(Needs(1000, 200)).gridRows, 8);
    EXPECT_EQ(PlanBeatWindow(Needs(1000, beside + 10 * 40)).height, beside + 10 * 40);
}

TEST(PlanBeatWindow, PutsTheNoteOverTheGrid)
{
    const BeatWindowPlan plan = PlanBeatWindow(Needs());
    EXPECT_EQ(plan.noteLbl, (Box{16, 26 + 8, 510, 26}));
    EXPECT_EQ(plan.grid, (Box{16, 26 + 38, 510, 8 * 40 + 12}));
}

TEST(PlanBeatWindow, PutsTheChosenBeatAtTheTopOfTheColumn)
{
    const BeatWindowPlan plan = PlanBeatWindow(Needs());
    const int left = plan.grid.Right() + 16;
    EXPECT_EQ(plan.choosenPic, (Box{left, plan.grid.top, 72, 72})) << "the pair is wider than the buttons";
    EXPECT_EQ(plan.testPlayBtn, (Box{left + 80, plan.grid.top + 12, 48, 48}));
    EXPECT_EQ(plan.nmLbl, (Box{left, plan.grid.top + 76, 128, 48}));
    EXPECT_EQ(plan.durLbl, (Box{left, plan.grid.top + 124, 128, 46}));
    EXPECT_EQ(plan.width, left + 128 + 16);
}

TEST(PlanBeatWindow, CentresTheChosenBeatOverWiderButtons)
{
    BeatWindowNeeds needs = Needs();
    needs.columnWidth = 148;
    const BeatWindowPlan plan = PlanBeatWindow(needs);
    const int left = plan.grid.Right() + 16;
    EXPECT_EQ(plan.choosenPic.left, left + 10);
    EXPECT_EQ(plan.nmLbl.left, left);
    EXPECT_EQ(plan.columnButtons[0].width, 148);
}

TEST(PlanBeatWindow, PutsTheButtonsUpFromTheLowerEdgeOfTheGrid)
{
    const BeatWindowPlan plan = PlanBeatWindow(Needs());
    const int left = plan.grid.Right() + 16;
    const int bottom = plan.grid.Bottom();
    EXPECT_EQ(plan.columnButtons[2], (Box{left, bottom - 42, 128, 42}));
    EXPECT_EQ(plan.columnButtons[1], (Box{left, bottom - 42 - 8 - 41, 128, 41}));
    EXPECT_EQ(plan.columnButtons[0], (Box{left, bottom - 42 - 8 - 41 - 8 - 40, 128, 40}));
}

TEST(PlanBeatWindow, PutsTheAnswersBelowTheGridAndHelpBelowTheColumn)
{
    const BeatWindowPlan plan = PlanBeatWindow(Needs());
    const int top = plan.grid.Bottom() + 12;
    EXPECT_EQ(plan.okBtn, (Box{16, top, 84, 40}));
    EXPECT_EQ(plan.cancelBtn, (Box{112, top, 90, 40}));
    EXPECT_EQ(plan.helpBtn, (Box{plan.grid.Right() + 16, top, 128, 40}));
    EXPECT_EQ(plan.height, top + 40 + 12);
}

} // namespace
} // namespace sprout
