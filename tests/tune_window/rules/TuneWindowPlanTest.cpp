// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/TuneWindowPlan.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace sprout {
namespace {

constexpr TuneWindowNeeds kNeeds{800, 600, 26, 755, 12, 340, 66};

TuneWindowNeeds OnScreen(int width, int height, std::int32_t tunes = 66)
{
    TuneWindowNeeds needs = kNeeds;
    needs.screenWidth = width;
    needs.screenHeight = height;
    needs.tunes = tunes;
    return needs;
}

std::vector<Box> Parts(const TuneWindowPlan& plan)
{
    std::vector<Box> parts{plan.grid,  plan.tunePic,   plan.tuneNameLbl, plan.createdByLbl,
                           plan.okBtn, plan.cancelBtn, plan.editor};
    parts.insert(parts.end(), plan.tools.begin(), plan.tools.end());
    return parts;
}

bool AreApart(const Box& a, const Box& b)
{
    return a.Right() <= b.left || b.Right() <= a.left || a.Bottom() <= b.top || b.Bottom() <= a.top;
}

void ExpectPartsApartAndInside(const TuneWindowPlan& plan)
{
    const std::vector<Box> parts = Parts(plan);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        EXPECT_GE(parts[i].left, 6) << i;
        EXPECT_GE(parts[i].top, 26 + 6) << i;
        EXPECT_LE(parts[i].Right(), plan.width - 6) << i;
        EXPECT_LE(parts[i].Bottom(), plan.height - 6) << i;
        EXPECT_GT(parts[i].width, 40) << i;
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_TRUE(AreApart(parts[i], parts[j])) << i << ' ' << j;
    }
}

TEST(PlanTuneWindow, PutsTheButtonsBetweenGridAndEditorOnASmallScreen)
{
    const TuneWindowPlan plan = PlanTuneWindow(OnScreen(800, 600));
    ExpectPartsApartAndInside(plan);
    EXPECT_LE(plan.width, 800);
    EXPECT_LE(plan.height, 600);
    EXPECT_EQ(plan.gridRows, 3);
    EXPECT_EQ(plan.grid, (Box{12, 32, 755, 132}));
    EXPECT_EQ(plan.tools[0].top, 170);
    EXPECT_EQ(plan.editor.top, 224);
}

TEST(PlanTuneWindow, PutsTheButtonsBesideTheGridOnALargeScreen)
{
    const TuneWindowPlan plan = PlanTuneWindow(OnScreen(1920, 1080));
    ExpectPartsApartAndInside(plan);
    EXPECT_GT(plan.tunePic.left, plan.grid.Right());
    EXPECT_EQ(plan.okBtn.Bottom(), plan.grid.Bottom());
    EXPECT_EQ(plan.cancelBtn.Right(), plan.editor.Right());
}

TEST(PlanTuneWindow, AGridWithRoomHasARowMoreThanItsTunesFill)
{
    EXPECT_EQ(PlanTuneWindow(OnScreen(1920, 1080, 200)).gridRows, 13);
    EXPECT_EQ(PlanTuneWindow(OnScreen(1920, 1080, 198)).gridRows, 12);
    EXPECT_EQ(PlanTuneWindow(OnScreen(1920, 1080, 0)).gridRows, 5);
}

TEST(PlanTuneWindow, AGridIsNoHigherThanTheScreenAllows)
{
    for (const int height : {720, 768, 900, 1080, 1440}) {
        const TuneWindowPlan plan = PlanTuneWindow(OnScreen(1920, height, 5000));
        EXPECT_LE(plan.height, height);
        EXPECT_GT(plan.height, height - 40);
        ExpectPartsApartAndInside(plan);
    }
}

TEST(PlanTuneWindow, AWideAndLowScreenHasTheButtonsInARow)
{
    const TuneWindowPlan plan = PlanTuneWindow(OnScreen(1280, 600));
    EXPECT_EQ(plan.width, 779);
    EXPECT_LE(plan.height, 600);
    ExpectPartsApartAndInside(plan);
}

TEST(PlanTuneWindow, AGridHasTwoRowsOnAnyScreen)
{
    const TuneWindowPlan plan = PlanTuneWindow(OnScreen(640, 480));
    EXPECT_EQ(plan.gridRows, 2);
    ExpectPartsApartAndInside(plan);
}

} // namespace
} // namespace sprout
