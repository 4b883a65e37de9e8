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
    needs.columnButtons = {BoxSize{90, 40}, {100, 40}, {95, 40}, {70, 40}};
    needs.soundFileButtons = {BoxSize{110, 40}, {120, 40}};
    needs.okBtn = {84, 40};
    needs.cancelBtn = {90, 40};
    return needs;
}

TEST(PlanSongWindow, PutsTheListBelowItsTitleAtTheHeightsOfTheMode)
{
    const SongSelLayout& open = LayoutOf(SongSelMode::Open);
    const SongWindowPlan plan = PlanSongWindow(open, Needs());
    EXPECT_EQ(plan.list, (Box{16, 26 + 56, 360, 257}));
    EXPECT_EQ(plan.modePic, (Box{12, 26 + 32 - 3, 30, 30}));
    EXPECT_EQ(plan.listTitleLbl, (Box{42, 26 + 32, 334, 24}));
    EXPECT_EQ(plan.listTitleLbl.Right(), plan.list.Right());
    EXPECT_EQ(PlanSongWindow(LayoutOf(SongSelMode::Save), Needs()).list, (Box{16, 26 + 44, 360, 211}));
}

TEST(PlanSongWindow, MakesTheColumnAsWideAsItsWidestButtonWithHelpAtTheLowerEdgeOfTheList)
{
    const SongWindowPlan plan = PlanSongWindow(LayoutOf(SongSelMode::Open), Needs());
    EXPECT_EQ(plan.columnButtons[0], (Box{392, plan.list.top, 100, 40}));
    EXPECT_EQ(plan.columnButtons[1], (Box{392, plan.list.top + 48, 100, 40}));
    EXPECT_EQ(plan.columnButtons[2], (Box{392, plan.list.top + 96, 100, 40}));
    EXPECT_EQ(plan.columnButtons[3], (Box{392, plan.list.Bottom() - 40, 100, 40}));
    EXPECT_EQ(plan.width, 392 + 100 + 16);
}

TEST(PlanSongWindow, PutsTheRowDirectlyBelowTheListWithoutANameBox)
{
    const SongWindowPlan plan = PlanSongWindow(LayoutOf(SongSelMode::Open), Needs());
    const int top = plan.list.Bottom() + 14;
    EXPECT_EQ(plan.okBtn, (Box{16, top, 84, 40}));
    EXPECT_EQ(plan.cancelBtn, (Box{112, top, 90, 40}));
    EXPECT_EQ(plan.height, top + 40 + 12);
    EXPECT_EQ(plan.songNameTxt, Box());
}

TEST(PlanSongWindow, PutsTheNameBoxBetweenListAndRow)
{
    const SongWindowPlan plan = PlanSongWindow(LayoutOf(SongSelMode::Save), Needs());
    const int titleTop = plan.list.Bottom() + 6;
    EXPECT_EQ(plan.textTitleLbl, (Box{12, titleTop, plan.width - 28, 24})) << "its text begins with a blank";
    EXPECT_EQ(plan.songNmLbl, (Box{16, titleTop + 26, 88, 34}));
    EXPECT_EQ(plan.songNameTxt, (Box{104, titleTop + 26, plan.width - 120, 34}));
    EXPECT_EQ(plan.okBtn.top, titleTop + 24 + 34 + 16);
    EXPECT_EQ(PlanSongWindow(LayoutOf(SongSelMode::New), Needs()).songNameTxt, plan.songNameTxt);
}

TEST(PlanSongWindow, PutsTheSoundFilesAtTheRightEnd)
{
    const SongWindowPlan plan = PlanSongWindow(LayoutOf(SongSelMode::Save), Needs());
    EXPECT_EQ(plan.soundFileButtons[1], (Box{plan.width - 16 - 120, plan.okBtn.top, 120, 40}));
    EXPECT_EQ(plan.soundFileButtons[0].Right(), plan.soundFileButtons[1].left - 12);
    EXPECT_EQ(plan.soundFileButtons[0].width, 110);
}

} // namespace
} // namespace sprout
