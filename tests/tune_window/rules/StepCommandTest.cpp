// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepCommand.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

/// Three steps; the second is off.
Tune ThreeSteps()
{
    Tune tune;
    tune.StepCount = 3;
    tune.Steps.resize(4);
    tune.Steps[1].OnPos = tune.Steps[3].OnPos = 1;
    return tune;
}

StepPoint In(std::int32_t step, std::int32_t y, std::int32_t dx = 15)
{
    return {StepLeft(step, kStepsLeftAtStart) + dx, y};
}

StepCommand Pressed(StepPoint place, StepButton button = StepButton::Left)
{
    return CommandOfPress(ThreeSteps(), kStepsLeftAtStart, place, button);
}

StepCommand Released(StepPoint down, StepPoint up, StepButton button = StepButton::Left)
{
    return CommandOfRelease(ThreeSteps(), kStepsLeftAtStart, down, up, button);
}

constexpr std::int32_t kLampY = 30;
constexpr std::int32_t kIconY = 100;
constexpr std::int32_t kHighestKeyY = 141 + 3;
constexpr std::int32_t kBetweenKeysY = 141 + 42;
constexpr std::int32_t kStripY = 296;

TEST(CommandOfPress, TogglesALampOrOpensItsMenuOnOffStepsToo)
{
    for (const std::int32_t step : {1, 2}) {
        EXPECT_EQ(Pressed(In(step, kLampY)), (StepCommand{.act = StepAct::ToggleLamp, .step = step}));
        EXPECT_EQ(Pressed(In(step, kLampY), StepButton::Right), (StepCommand{.act = StepAct::OpenMenu, .step = step}));
        EXPECT_EQ(Pressed(In(step, kLampY), StepButton::Other), StepCommand());
    }
}

TEST(CommandOfPress, ClicksOrPlaysAKey)
{
    EXPECT_EQ(Pressed(In(3, kHighestKeyY, 25)), (StepCommand{.act = StepAct::ClickKey, .step = 3, .pitch = 11}));
    EXPECT_EQ(Pressed(In(3, kBetweenKeysY, 25)), (StepCommand{.act = StepAct::ClickKey, .step = 3}));
    EXPECT_EQ(Pressed(In(3, kHighestKeyY, 25), StepButton::Right), (StepCommand{.act = StepAct::PlayStep, .step = 3}));
    EXPECT_EQ(Pressed(In(3, kHighestKeyY, 25), StepButton::Other), StepCommand());
}

TEST(CommandOfPress, SetsOrPlaysThePlacesOfTheStrip)
{
    EXPECT_EQ(Pressed(In(1, kStripY, 2)),
              (StepCommand{.act = StepAct::ClickStrip, .step = 1, .part = StripPlace::Volume, .amount = 114}));
    EXPECT_EQ(Pressed(In(1, kStripY)).part, StripPlace::None);
    EXPECT_EQ(Pressed(In(1, kStripY, 2), StepButton::Right), (StepCommand{.act = StepAct::PlayStep, .step = 1}));
    EXPECT_EQ(Pressed(In(1, kStripY, 2), StepButton::Other), StepCommand());
}

TEST(CommandOfPress, LeavesOffStepsGapsAndIconsAlone)
{
    for (const std::int32_t y : {kIconY, kHighestKeyY, kStripY})
        for (const StepButton button : {StepButton::Left, StepButton::Right})
            EXPECT_EQ(Pressed(In(2, y, 2), button), StepCommand()) << y;
    EXPECT_EQ(Pressed(In(1, kLampY, 32)), StepCommand());
    EXPECT_EQ(Pressed(In(4, kLampY)), StepCommand());
    EXPECT_EQ(Pressed(In(1, kIconY)), StepCommand()) << "an icon waits for the release";
}

TEST(CommandOfRelease, ChoosesOrPlaysTheBeatOfOneIcon)
{
    EXPECT_EQ(Released(In(1, 82, 3), In(1, 108, 28)), (StepCommand{.act = StepAct::ChooseBeat, .step = 1}));
    EXPECT_EQ(Released(In(1, kIconY), In(1, kIconY), StepButton::Right),
              (StepCommand{.act = StepAct::PlayBeat, .step = 1}));
    EXPECT_EQ(Released(In(1, kIconY), In(1, kIconY), StepButton::Other), StepCommand());
}

TEST(CommandOfRelease, AsksForNothingElsewhere)
{
    EXPECT_EQ(Released(In(1, kIconY), In(3, kIconY)), StepCommand());
    EXPECT_EQ(Released(In(1, kIconY), In(1, 120)), StepCommand());
    EXPECT_EQ(Released({-1, -1}, In(1, kIconY)), StepCommand());
    EXPECT_EQ(Released(In(2, kIconY), In(2, kIconY)), StepCommand()) << "the step is off";
    EXPECT_EQ(Released(In(1, kIconY, 32), In(1, kIconY, 32)), StepCommand());
}

} // namespace
} // namespace sprout
