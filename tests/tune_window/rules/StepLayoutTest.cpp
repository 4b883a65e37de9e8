// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

TEST(StepAt, HitsTheInnerPixelsOfAColumn)
{
    constexpr std::int32_t left = 8;
    EXPECT_EQ(StepAt(8, left, 3), 0);
    EXPECT_EQ(StepAt(9, left, 3), 1);
    EXPECT_EQ(StepAt(37, left, 3), 1);
    EXPECT_EQ(StepAt(38, left, 3), 0);
    EXPECT_EQ(StepAt(44, left, 3), 2);
    EXPECT_EQ(StepAt(79, left, 3), 3);
    EXPECT_EQ(StepAt(107, left, 3), 3);
    EXPECT_EQ(StepAt(114, left, 3), 0) << "behind the last step";
    EXPECT_EQ(StepAt(-2, left, 3), 0);
}

TEST(StepAt, HitsNothingInTheGapBetweenTwoColumns)
{
    for (std::int32_t x = 38; x <= 43; ++x)
        EXPECT_EQ(StepAt(x, 8, 16), 0) << x;
}

TEST(StepAt, FollowsTheScroll)
{
    EXPECT_EQ(StepAt(9, -27, 16), 2);
    EXPECT_EQ(StepLeft(2, -27), 8);
}

TEST(StepZoneAt, EndsBeforeItsTwoLimits)
{
    struct Limit {
        StepZone zone;
        std::int32_t above;
        std::int32_t below;
    };
    for (const Limit& limit :
         {Limit{StepZone::Lamp, 24, 39}, Limit{StepZone::Icon, 79, 111}, Limit{StepZone::UpperOctave, 141, 213},
          Limit{StepZone::LowerOctave, 213, 285}, Limit{StepZone::Strip, 291, 300}}) {
        EXPECT_EQ(StepZoneAt(limit.above), StepZone::None) << limit.above;
        EXPECT_EQ(StepZoneAt(limit.above + 1), limit.zone);
        EXPECT_EQ(StepZoneAt(limit.below - 1), limit.zone);
        EXPECT_EQ(StepZoneAt(limit.below), StepZone::None) << limit.below;
    }
}

TEST(PitchAt, IsThatOfTheKeyUnderThePoint)
{
    EXPECT_EQ(PitchAt(1, 8, 8 + 25, 141 + 3), 11);
    EXPECT_EQ(PitchAt(1, 8, 8 + 25, 141 + 70), 0);
    EXPECT_EQ(PitchAt(1, 8, 8 + 5, 141 + 7), 10);
    EXPECT_EQ(PitchAt(2, 8, 43 + 25, 213 + 3), -1);
    EXPECT_EQ(PitchAt(2, 8, 43 + 25, 213 + 70), -12);
}

TEST(PitchAt, IsNothingBetweenTwoKeys)
{
    EXPECT_EQ(PitchAt(1, 8, 8 + 25, 141 + 42), std::nullopt);
    EXPECT_EQ(PitchAt(1, 8, 8 + 29, 141 + 3), std::nullopt);
    EXPECT_EQ(PitchAt(1, 8, 8 + 25, 213), std::nullopt);
    EXPECT_EQ(PitchAt(1, 8, 8 + 25, 90), std::nullopt);
}

TEST(IconFrame, StandsAroundTheIcon)
{
    EXPECT_EQ(IconFrame(3, 8), (FrameEdges{76, 78, 111, 112}));
}

TEST(BarOfStep, StandsOnTheKeyOfItsPitch)
{
    EXPECT_EQ(BarOfStep(1, 8, 0, 100).top, 141 + 64);
    EXPECT_EQ(BarOfStep(1, 8, 11, 100).top, 141 + 1);
    EXPECT_EQ(BarOfStep(1, 8, -1, 100).top, 213 + 1);
    EXPECT_EQ(BarOfStep(1, 8, -12, 100).top, 213 + 64);
    EXPECT_EQ(BarOfStep(1, 8, 5, 100).top, 141 + 34);
}

TEST(BarOfStep, ShowsAPitchBeyondTheKeyboardAtItsEnd)
{
    EXPECT_EQ(BarOfStep(1, 8, 40, 100), BarOfStep(1, 8, 11, 100));
    EXPECT_EQ(BarOfStep(1, 8, -100, 100), BarOfStep(1, 8, -12, 100));
}

TEST(BarOfStep, HasAMiddleOf20PixelsAtADurationOf100)
{
    EXPECT_EQ(BarMiddle(100), 20);
    EXPECT_EQ(BarOfStep(2, 8, 0, 100), (DurationBar{46 + 4 + 20, 205, 46, 205, 46 + 4 + 20 + 8, 212}));
    EXPECT_EQ(BarMiddle(200), 40);
    EXPECT_EQ(BarOfStep(2, 8, 0, 200).handleX, 46 + 4 + 40);
}

TEST(BarOfStep, IsTheTwoCapsOnlyAtADurationOf0)
{
    EXPECT_EQ(BarMiddle(0), 0);
    EXPECT_EQ(BarOfStep(1, 8, 0, 0), (DurationBar{15, 205, 11, 205, 23, 212}));
}

TEST(BarOfStep, HidesAMiddleOfOnePixelBelowItsCap)
{
    EXPECT_EQ(BarMiddle(5), 1);
    EXPECT_EQ(BarOfStep(1, 8, 0, 5).handleX, 15);
    EXPECT_EQ(BarMiddle(10), 2);
    EXPECT_EQ(BarOfStep(1, 8, 0, 10).handleX, 17);
}

class BarAtTest : public testing::Test {
protected:
    BarAtTest()
    {
        tune.StepCount = 3;
        tune.Steps.resize(4);
        for (std::int32_t step = 1; step <= 3; ++step) {
            At(tune.Steps, step).OnPos = 1;
            bars.push_back(BarOfStep(step, 8, 0, 200));
        }
    }

    Tune tune;
    std::vector<DurationBar> bars = std::vector<DurationBar>(1);
};

TEST_F(BarAtTest, FindsTheEdgesOfABar)
{
    const DurationBar& last = bars[3];
    EXPECT_EQ(BarAt(bars, tune, last.right, last.top), 3);
    EXPECT_EQ(BarAt(bars, tune, last.right, last.bottom), 3);
    EXPECT_EQ(BarAt(bars, tune, last.right + 1, last.top), 0);
    EXPECT_EQ(BarAt(bars, tune, last.right, last.bottom + 1), 0);
    EXPECT_EQ(BarAt(bars, tune, bars[1].left, bars[1].top), 1);
    EXPECT_EQ(BarAt(bars, tune, bars[1].left - 1, bars[1].top), 0);
    EXPECT_EQ(BarAt(bars, tune, bars[1].left, bars[1].top - 1), 0);
}

TEST_F(BarAtTest, PrefersTheEarlierOfTwoBarsThatLieOverEachOther)
{
    const std::int32_t shared = bars[2].left + 1;
    EXPECT_EQ(BarAt(bars, tune, shared, bars[2].top), 1);
}

TEST_F(BarAtTest, PassesOverStepsThatAreOff)
{
    tune.Steps[1].OnPos = 0;
    EXPECT_EQ(BarAt(bars, tune, bars[1].left, bars[1].top), 0);
    tune.Steps[1].OnPos = 2;
    EXPECT_EQ(BarAt(bars, tune, bars[1].left, bars[1].top), 0);
}

TEST_F(BarAtTest, NeverLooksBehindTheTune)
{
    tune.StepCount = 2;
    EXPECT_EQ(BarAt(bars, tune, bars[3].right, bars[3].top), 0);
    tune.StepCount = 3;
    bars.resize(2);
    EXPECT_EQ(BarAt(bars, tune, 8 + 75, 205), 0);
}

TEST(StripPlaceAt, HasTwoPlacesOfTwoPixels)
{
    constexpr std::int32_t x = 43;
    EXPECT_EQ(StripPlaceAt(2, 8, x + 1), StripPlace::None);
    EXPECT_EQ(StripPlaceAt(2, 8, x + 2), StripPlace::Volume);
    EXPECT_EQ(StripPlaceAt(2, 8, x + 3), StripPlace::Volume);
    EXPECT_EQ(StripPlaceAt(2, 8, x + 4), StripPlace::None);
    EXPECT_EQ(StripPlaceAt(2, 8, x + 27), StripPlace::None);
    EXPECT_EQ(StripPlaceAt(2, 8, x + 28), StripPlace::Duration);
    EXPECT_EQ(StripPlaceAt(2, 8, x + 29), StripPlace::Duration);
    EXPECT_EQ(StripPlaceAt(2, 8, x + 30), StripPlace::None);
}

TEST(StripValue, RisesFromTheBottomAndIsCaughtAtItsEnds)
{
    EXPECT_EQ(StripValue(299), 29);
    EXPECT_EQ(StripValue(298), 57);
    EXPECT_EQ(StripValue(297), 86);
    EXPECT_EQ(StripValue(296), 114);
    EXPECT_EQ(StripValue(293), 200);
    EXPECT_EQ(StripValue(292), 200);
    EXPECT_EQ(StripValue(300), 0);
}

TEST(StepScrollRange, LeavesAFifthOfTheSurfaceBehindTheLastStep)
{
    EXPECT_EQ(StepScrollRange(64, 740), (StepScroll{64 * 35 - 592, 370}));
    EXPECT_EQ(StepScrollRange(32, 733), (StepScroll{1120 - 586, 366})) << "586.4 and 366.5, to whole numbers";
}

TEST(StepScrollRange, IsNeverShorterThan10)
{
    EXPECT_EQ(StepScrollRange(8, 740).maximum, 10);
    EXPECT_EQ(StepScrollRange(0, 0).maximum, 10);
}

TEST(ScrollToStep, StaysWhereTheStepIsSeen)
{
    EXPECT_EQ(ScrollToStep(1, 1, 740), 1);
    EXPECT_EQ(ScrollToStep(20, 1, 740), 1);
    EXPECT_EQ(ScrollToStep(12, 200, 740), 200);
}

TEST(ScrollToStep, MovesAsFarAsNeeded)
{
    const std::int32_t right = ScrollToStep(64, 1, 740);
    EXPECT_EQ(StepLeft(64, StepsLeftAt(right)) + kStepPitch, 740);
    const std::int32_t left = ScrollToStep(3, right, 740);
    EXPECT_EQ(StepLeft(3, StepsLeftAt(left)), 8);
    EXPECT_EQ(ScrollToStep(1, right, 740), 1);
}

TEST(ChangeAllLeft, IsBehindTheLastStep)
{
    EXPECT_EQ(ChangeAllLeft(16, 8), 576);
}

TEST(StepAt, HitsNothingLeftOfTheFirstColumn)
{
    for (std::int32_t x = -100; x <= 8; ++x)
        EXPECT_EQ(StepAt(x, 8, 64), 0) << x;
}

} // namespace
} // namespace sprout
