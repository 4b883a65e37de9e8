// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepPointer.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

class StepPointerTest : public testing::Test {
protected:
    StepPointerTest()
    {
        tune.StepCount = 3;
        tune.Steps.resize(4);
        tune.Steps[1].OnPos = 1;
        tune.Steps[1].StepBeat.Name = "P_Piano High";
        tune.Steps[2].OnPos = 2; // only 1 means on
        tune.Steps[3].OnPos = 1;
    }

    /// What is shown at a point of a column.
    [[nodiscard]] StepPointer Over(std::int32_t step, std::int32_t y, std::int32_t inColumn = 15) const
    {
        return PointerOverSteps(tune, kStepsLeftAtStart, StepLeft(step, kStepsLeftAtStart) + inColumn, y);
    }

    Tune tune;
    const StepPointer nothing;
};

TEST_F(StepPointerTest, TellsOfTheLampOfEveryStep)
{
    for (const std::int32_t step : {1, 2})
        EXPECT_EQ(Over(step, 30),
                  (StepPointer{StepCursor::Normal, Words::Later("Click on a step to make in ON/OFF"), {}, ""}));
}

TEST_F(StepPointerTest, TellsOfTheKeysOfAnOnStep)
{
    for (const std::int32_t y : {150, 220})
        EXPECT_EQ(
            Over(1, y),
            (StepPointer{StepCursor::PianoCursorImg, Words::Later("Click on a piano key to change pitch"), {}, ""}));
    EXPECT_EQ(Over(2, 150), nothing);
    EXPECT_EQ(Over(1, 213), nothing);
}

TEST_F(StepPointerTest, NamesTheBeatOfAnIcon)
{
    constexpr LaterWords hint = Words::Later("Click on the icon to choose an instrument beat");
    EXPECT_EQ(Over(1, 100), (StepPointer{StepCursor::Normal, hint, {}, "P_Piano High"}));
    EXPECT_EQ(Over(3, 100), (StepPointer{StepCursor::Normal, hint, Words::Later("Click here"), ""}));
    EXPECT_EQ(Over(2, 100), nothing);
}

TEST_F(StepPointerTest, TellsOfThePlacesOfTheStrip)
{
    EXPECT_EQ(
        Over(1, 295, 2),
        (StepPointer{
            StepCursor::PianoCursorImg, Words::Later("Volume Slider, Click on the slider to change Volume"), {}, ""}));
    EXPECT_EQ(Over(1, 295, 29), (StepPointer{StepCursor::PianoCursorImg,
                                             Words::Later("Duration slider, Click on the slider to change Duration"),
                                             {},
                                             ""}));
    EXPECT_EQ(Over(1, 295), (StepPointer{StepCursor::PianoCursorImg, {}, {}, ""}));
    EXPECT_EQ(Over(2, 295, 2), nothing);
}

TEST_F(StepPointerTest, ShowsNothingBesideTheColumnsAndBetweenTheZones)
{
    EXPECT_EQ(Over(1, 30, 32), nothing);
    EXPECT_EQ(Over(4, 30), nothing);
    EXPECT_EQ(Over(1, 60), nothing);
}

TEST_F(StepPointerTest, SaysAStepInWords)
{
    tune.Steps[1].PitchShift = 4;
    EXPECT_EQ(StepInWords(tune.Steps[1], 3, "Piano High").English(), "Step 3, on, Piano High, pitch 4");
    EXPECT_EQ(StepInWords(tune.Steps[2], 2, "Piano High").English(), "Step 2, off");
    EXPECT_EQ(StepInWords(tune.Steps[3], 3, "").English(), "Step 3, on, no instrument, pitch 0");
}

} // namespace
} // namespace sprout
