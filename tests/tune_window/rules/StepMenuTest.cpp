// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepMenu.h"

#include <gtest/gtest.h>

#include <string>

#include "support/Flags.h"

namespace sprout {
namespace {

/// A tune whose steps carry their original place as their volume; "x" is on, "." off, "2" the value 2.
Tune TuneOf(const std::string& lamps)
{
    Tune tune;
    tune.StepCount = static_cast<std::int32_t>(lamps.size());
    tune.Steps.resize(lamps.size() + 1);
    for (std::size_t i = 1; i <= lamps.size(); ++i) {
        tune.Steps[i].OnPos = lamps[i - 1] == 'x' ? 1 : lamps[i - 1] == '2' ? 2 : 0;
        tune.Steps[i].Volume = static_cast<std::int32_t>(i);
        SetStepWaveValid(tune.Steps[i], i % 2 == 1);
    }
    SetTuneWaveValid(tune, true);
    return tune;
}

/// The lamps and origins of the steps: "x3" is a step that is on and came from place 3.
std::string StepsOf(const Tune& tune)
{
    std::string text;
    for (std::int32_t i = 1; i <= tune.StepCount; ++i)
        text += (At(tune.Steps, i).OnPos == 1 ? "x" : ".") + std::to_string(At(tune.Steps, i).Volume);
    return text;
}

TEST(StepMenu, HasItsItemsAtTheirPlaces)
{
    ASSERT_EQ(kStepMenu.size(), 8U);
    for (const std::size_t place : {0, 1, 3, 4, 6, 7})
        EXPECT_EQ(static_cast<std::size_t>(kStepMenu[place].item), place);
    EXPECT_EQ(kStepMenu[0].caption.English(), "Move all to left");
    EXPECT_EQ(kStepMenu[1].caption.English(), "Move all to right");
    EXPECT_TRUE(kStepMenu[2].caption.IsEmpty());
    EXPECT_EQ(kStepMenu[3].caption.English(), "Move Step to left");
    EXPECT_EQ(kStepMenu[4].caption.English(), "Move Step to right");
    EXPECT_TRUE(kStepMenu[5].caption.IsEmpty());
    EXPECT_EQ(kStepMenu[6].caption.English(), "Insert Step");
    EXPECT_EQ(kStepMenu[7].caption.English(), "Delete Step");
}

TEST(StepMenu, OffersTheMoveOfOneStepForOnStepsOnly)
{
    const Tune tune = TuneOf("x.");
    EXPECT_TRUE(StepMenuItemEnabled(StepMoveMnu::MoveStepToLeft, tune.Steps[1]));
    EXPECT_FALSE(StepMenuItemEnabled(StepMoveMnu::MoveStepToLeft, tune.Steps[2]));
    EXPECT_FALSE(StepMenuItemEnabled(StepMoveMnu::MoveStepToRight, tune.Steps[2]));
    EXPECT_TRUE(StepMenuItemEnabled(StepMoveMnu::InsertStep, tune.Steps[2]));
    EXPECT_TRUE(StepMenuItemEnabled(StepMoveMnu::MoveAllToLeft, tune.Steps[2]));
}

TEST(StepMenu, RotatesAllSteps)
{
    Tune tune = TuneOf("x.x.");
    EXPECT_FALSE(ApplyStepMenu(tune, 2, StepMoveMnu::MoveAllToLeft).IsRefusal());
    EXPECT_EQ(StepsOf(tune), ".2x3.4x1");
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_FALSE(ApplyStepMenu(tune, 2, StepMoveMnu::MoveAllToRight).IsRefusal());
    EXPECT_EQ(StepsOf(tune), "x1.2x3.4");
    EXPECT_TRUE(tune.Steps[1].StepWaveValid) << "the rendered sound moves along";
}

TEST(StepMenu, MovesAStepOntoAnOffStepAndKeepsACopy)
{
    Tune tune = TuneOf(".x..");
    EXPECT_FALSE(ApplyStepMenu(tune, 2, StepMoveMnu::MoveStepToLeft).IsRefusal());
    EXPECT_EQ(StepsOf(tune), "x2.2.3.4");
    EXPECT_FALSE(ApplyStepMenu(tune, 1, StepMoveMnu::MoveStepToRight).IsRefusal());
    EXPECT_EQ(StepsOf(tune), ".2x2.3.4");
    EXPECT_FALSE(tune.TuneWaveValid);
}

TEST(StepMenu, MovesAStepAroundTheEndsOfTheCycle)
{
    Tune tune = TuneOf("x...");
    EXPECT_FALSE(ApplyStepMenu(tune, 1, StepMoveMnu::MoveStepToLeft).IsRefusal());
    EXPECT_EQ(StepsOf(tune), ".1.2.3x1");
    EXPECT_FALSE(ApplyStepMenu(tune, 4, StepMoveMnu::MoveStepToRight).IsRefusal());
    EXPECT_EQ(StepsOf(tune), "x1.2.3.1");
}

TEST(StepMenu, RefusesToMoveAStepOntoOneThatIsOn)
{
    Tune tune = TuneOf("xx.x");
    for (const auto& [step, item] : {std::pair{2, StepMoveMnu::MoveStepToLeft},
                                     {1, StepMoveMnu::MoveStepToRight},
                                     {1, StepMoveMnu::MoveStepToLeft},
                                     {4, StepMoveMnu::MoveStepToRight}}) {
        const StepMenuRefusal refusal = ApplyStepMenu(tune, step, item);
        EXPECT_EQ(refusal.line1.English(), "Next step is ON,");
        EXPECT_EQ(refusal.line2.English(), "Can not move this.");
        EXPECT_EQ(refusal.title.English(), "Move Failed!");
    }
    EXPECT_EQ(StepsOf(tune), "x1x2.3x4");
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST(StepMenu, TakesAStepOfAnyValueBut1ForOff)
{
    Tune tune = TuneOf("x2.2");
    EXPECT_FALSE(StepMenuItemEnabled(StepMoveMnu::MoveStepToLeft, tune.Steps[2]));
    EXPECT_FALSE(ApplyStepMenu(tune, 1, StepMoveMnu::MoveStepToRight).IsRefusal());
    EXPECT_EQ(StepsOf(tune), ".1x1.3.4");
    EXPECT_FALSE(ApplyStepMenu(tune, 1, StepMoveMnu::InsertStep).IsRefusal());
    EXPECT_EQ(StepsOf(tune), ".1.1x1.3");
}

TEST(StepMenu, InsertsASilentCopyAndLosesTheLastStep)
{
    Tune tune = TuneOf("xx..");
    EXPECT_FALSE(ApplyStepMenu(tune, 1, StepMoveMnu::InsertStep).IsRefusal());
    EXPECT_EQ(StepsOf(tune), ".1x1x2.3");
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_TRUE(tune.Steps[1].StepWaveValid);
    EXPECT_TRUE(tune.Steps[2].StepWaveValid);
}

TEST(StepMenu, RefusesToInsertWhereTheLastStepIsOn)
{
    Tune tune = TuneOf("x..x");
    const StepMenuRefusal refusal = ApplyStepMenu(tune, 1, StepMoveMnu::InsertStep);
    EXPECT_EQ(refusal.line1.English(), "Last step is ON,");
    EXPECT_EQ(refusal.line2.English(), "Can not move that to insert.");
    EXPECT_EQ(refusal.title.English(), "Insert Step Failed!");
    EXPECT_EQ(StepsOf(tune), "x1.2.3x4");
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST(StepMenu, InsertingAtTheLastStepChangesNothingButMakesTheSoundStale)
{
    Tune tune = TuneOf("x...");
    EXPECT_FALSE(ApplyStepMenu(tune, 4, StepMoveMnu::InsertStep).IsRefusal());
    EXPECT_EQ(StepsOf(tune), "x1.2.3.4");
    EXPECT_FALSE(tune.TuneWaveValid);
}

TEST(StepMenu, DeletesAStepAndSilencesTheLast)
{
    Tune tune = TuneOf("xxxx");
    EXPECT_FALSE(ApplyStepMenu(tune, 2, StepMoveMnu::DeleteStep).IsRefusal());
    EXPECT_EQ(StepsOf(tune), "x1x3x4.4");
    EXPECT_FALSE(ApplyStepMenu(tune, 4, StepMoveMnu::DeleteStep).IsRefusal());
    EXPECT_EQ(StepsOf(tune), "x1x3x4.4");
    EXPECT_FALSE(tune.TuneWaveValid);
}

} // namespace
} // namespace sprout
