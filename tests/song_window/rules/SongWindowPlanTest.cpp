// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/rules/SongWindowPlan.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

SongWindowNeeds Needs()
{
    SongWindowNeeds needs;
    needs.bandHeight = 26;
    needs.blankWidth = 4;
    needs.nameLabelWidth = 80;
    needs.columnButtons = {PlanSize{90, 40}, {100, 40}, {95, 40}, {70, 40}};
    needs.soundFileButtons = {PlanSize{110, 40}, {120, 40}};
    needs.okBtn = {84, 40};
    needs.cancelBtn = {90, 40};
    return needs;
}

TEST(PlanSongWindow, PutsTheListBelowItsTitleAtTheHeightsOfTheMode)
{
    const SongSelLayout& open = LayoutOf(SongSelMode::Open);
    const SongWindowPlan plan = PlanSongWindow(open, Needs());
    EXPECT_EQ(plan.list, (PlanBox{16, 26 + 56, 360, 257}));
    EXPECT_EQ(plan.modePic, (PlanBox{12, 26 + 32 - 3, 30, 30}));
    EXPECT_EQ(plan.listTitleLbl, (PlanBox{42, 26 + 32, 334, 24}));
    EXPECT_EQ(plan.listTitleLbl.Right(), plan.list.Right());
    EXPECT_EQ(PlanSongWindow(LayoutOf(SongSelMode::Save), Needs()).list, (PlanBox{16, 26 + 44, 360, 211}));
}

TEST(PlanSongWindow, MakesTheColumnAsWideAsItsWidestButtonWithHelpAtTheLowerEdgeOfTheList)
{
    const SongWindowPlan plan = PlanSongWindow(LayoutOf(SongSelMode::Open), Needs());
    EXPECT_EQ(plan.columnButtons[0], (PlanBox{392, plan.list.y, 100, 40}));
    EXPECT_EQ(plan.columnButtons[1], (PlanBox{392, plan.list.y + 48, 100, 40}));
    EXPECT_EQ(plan.columnButtons[2], (PlanBox{392, plan.list.y + 96, 100, 40}));
    EXPECT_EQ(plan.columnButtons[3], (PlanBox{392, plan.list.Bottom() - 40, 100, 40}));
    EXPECT_EQ(plan.width, 392 + 100 + 16);
}

TEST(PlanSongWindow, PutsTheRowDirectlyBelowTheListWithoutANameBox)
{
    const SongWindowPlan plan = PlanSongWindow(LayoutOf(SongSelMode::Open), Needs());
    const int top = plan.list.Bottom() + 14;
    EXPECT_EQ(plan.okBtn, (PlanBox{16, top, 84, 40}));
    EXPECT_EQ(plan.cancelBtn, (PlanBox{112, top, 90, 40}));
    EXPECT_EQ(plan.height, top + 40 + 12);
    EXPECT_EQ(plan.songNameTxt, PlanBox());
}

TEST(PlanSongWindow, PutsTheNameBoxBetweenListAndRow)
{
    const SongWindowPlan plan = PlanSongWindow(LayoutOf(SongSelMode::Save), Needs());
    const int titleTop = plan.list.Bottom() + 6;
    EXPECT_EQ(plan.textTitleLbl, (PlanBox{12, titleTop, plan.width - 28, 24})) << "its text begins with a blank";
    EXPECT_EQ(plan.songNmLbl, (PlanBox{16, titleTop + 26, 88, 34}));
    EXPECT_EQ(plan.songNameTxt, (PlanBox{104, titleTop + 26, plan.width - 120, 34}));
    EXPECT_EQ(plan.okBtn.y, titleTop + 24 + 34 + 16);
    EXPECT_EQ(PlanSongWindow(LayoutOf(SongSelMode::New), Needs()).songNameTxt, plan.songNameTxt);
}

TEST(PlanSongWindow, PutsTheSoundFilesAtTheRightEnd)
{
    const SongWindowPlan plan = PlanSongWindow(LayoutOf(SongSelMode::Save), Needs());
    EXPECT_EQ(plan.soundFileButtons[1], (PlanBox{plan.width - 16 - 120, plan.okBtn.y, 120, 40}));
    EXPECT_EQ(plan.soundFileButtons[0].Right(), plan.soundFileButtons[1].x - 12);
    EXPECT_EQ(plan.soundFileButtons[0].width, 110);
}

} // namespace
} // namespace sprout
