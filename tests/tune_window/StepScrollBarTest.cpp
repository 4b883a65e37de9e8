// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepScrollBar.h"

#include "tune_window/StepEditorTest.h"

namespace sprout {
namespace {

using TunFramHScrollTest = StepEditorTest;

TEST_F(TunFramHScrollTest, BeginsAt1AndLeavesAFifthFree)
{
    ShowTuneOf(64);
    EXPECT_EQ(Scroll().minimum(), 1);
    EXPECT_EQ(Scroll().value(), 1);
    EXPECT_EQ(Scroll().maximum(), 64 * 35 - 592);
    EXPECT_EQ(Scroll().pageStep(), 370);
    EXPECT_EQ(Surface().DurationBars()[1].left, 8 + 3) << "the steps begin at 8, not at 7";
}

TEST_F(TunFramHScrollTest, MovesTheSteps)
{
    ShowTuneOf(64);
    Scroll().setValue(36);
    EXPECT_EQ(Surface().DurationBars()[2].left, 8 - 36 + 35 + 3);
    EXPECT_EQ(StepButton(2).x(), 8 - 36 + 35 - 3);
    EXPECT_EQ(Find<QWidget>("ChangeAllBtn").x(), 64 * 35 + 8 - 36 + 8);
}

TEST_F(TunFramHScrollTest, TellsWhereTheFirstStepIs)
{
    StepScrollBar bar(&window);
    int scrolled = 0;
    QObject::connect(&bar, &StepScrollBar::Scrolled, &bar, [&scrolled] { ++scrolled; });
    bar.SetStepScroll(64, 740);
    EXPECT_EQ(bar.StepsLeft(), 8);
    bar.setValue(36);
    EXPECT_EQ(bar.StepsLeft(), 8 - 36);
    EXPECT_EQ(scrolled, 1);
    bar.BringIntoView(1, 740);
    EXPECT_GT(StepLeft(1, bar.StepsLeft()), 0);
    EXPECT_EQ(scrolled, 2);
    bar.setValue(100);
    bar.SetStepScroll(64, 740);
    EXPECT_EQ(bar.StepsLeft(), 8);
    EXPECT_EQ(scrolled, 3) << "a new range is no scroll";
}

} // namespace
} // namespace sprout
