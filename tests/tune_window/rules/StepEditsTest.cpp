// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepEdits.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "support/Flags.h"

namespace sprout {
namespace {

class StepEditsTest : public testing::Test {
protected:
    StepEditsTest() { MakeSteps(4); }

    /// Steps that are on and valid, each with a different volume.
    void MakeSteps(std::int32_t count)
    {
        tune.StepCount = count;
        tune.Steps.assign(static_cast<std::size_t>(count) + 1, TuneStep());
        for (std::int32_t i = 1; i <= count; ++i) {
            TuneStep& step = At(tune.Steps, i);
            step.OnPos = 1;
            step.Volume = i;
            SetStepWaveValid(step, true);
        }
        SetTuneWaveValid(tune, true);
    }

    [[nodiscard]] static Beat LoadedBeat(const std::string& name)
    {
        Beat beat;
        beat.Name = name;
        beat.Loaded = true;
        return beat;
    }

    [[nodiscard]] std::string Origins() const
    {
        std::string text;
        for (std::int32_t i = 1; i <= tune.StepCount; ++i)
            text += std::to_string(At(tune.Steps, i).Volume);
        return text;
    }

    [[nodiscard]] std::string ValidSteps() const
    {
        std::string text;
        for (std::int32_t i = 1; i <= tune.StepCount; ++i)
            text += At(tune.Steps, i).StepWaveValid ? std::to_string(i) : "";
        return text;
    }

    Tune tune;
};

TEST_F(StepEditsTest, TogglesALamp)
{
    ToggleStep(tune, 2);
    EXPECT_EQ(tune.Steps[2].OnPos, 0);
    EXPECT_EQ(ValidSteps(), "134");
    EXPECT_FALSE(tune.TuneWaveValid);
    ToggleStep(tune, 2);
    EXPECT_EQ(tune.Steps[2].OnPos, 1);
}

TEST_F(StepEditsTest, TakesAnyLampThatIsNot0ForOn)
{
    tune.Steps[2].OnPos = 7;
    ToggleStep(tune, 2);
    EXPECT_EQ(tune.Steps[2].OnPos, 0);
}

TEST_F(StepEditsTest, StoresThePitchOfAKeyAndPlays)
{
    EXPECT_EQ(ClickKey(tune, 3, 5), (KeyClick{true, true}));
    EXPECT_EQ(tune.Steps[3].PitchShift, 5);
    EXPECT_EQ(ValidSteps(), "124");
    EXPECT_FALSE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, PlaysAKeyThatIsSetAlreadyWithoutChangingAnything)
{
    EXPECT_EQ(ClickKey(tune, 3, 0), (KeyClick{false, true}));
    EXPECT_EQ(ValidSteps(), "1234");
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, DoesNothingBetweenTwoKeys)
{
    EXPECT_EQ(ClickKey(tune, 3, std::nullopt), KeyClick());
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, LeavesAPitchBeyond64AloneAltogether)
{
    for (const std::int32_t pitch : {65, -65, std::numeric_limits<std::int32_t>::max()}) {
        tune.Steps[3].PitchShift = pitch;
        EXPECT_EQ(ClickKey(tune, 3, 5), KeyClick());
        EXPECT_EQ(MovePitch(tune, 3, 1), KeyClick());
        EXPECT_EQ(tune.Steps[3].PitchShift, pitch);
    }
    tune.Steps[3].PitchShift = 64;
    EXPECT_EQ(ClickKey(tune, 3, 5), (KeyClick{true, true}));
}

TEST_F(StepEditsTest, MovesThePitchKeyByKeyToTheEndsOfTheKeyboard)
{
    EXPECT_TRUE(MovePitch(tune, 1, 1).changed);
    EXPECT_EQ(tune.Steps[1].PitchShift, 1);
    tune.Steps[1].PitchShift = 11;
    EXPECT_EQ(MovePitch(tune, 1, 1), (KeyClick{false, true}));
    tune.Steps[1].PitchShift = -12;
    EXPECT_EQ(MovePitch(tune, 1, -1), (KeyClick{false, true}));
    tune.Steps[1].PitchShift = 40;
    EXPECT_TRUE(MovePitch(tune, 1, -1).changed);
    EXPECT_EQ(tune.Steps[1].PitchShift, 10) << "from the key that shows it";
}

TEST_F(StepEditsTest, SetsVolumeAndDurationOnTheStrip)
{
    EXPECT_TRUE(ClickStrip(tune, 2, StripPlace::Volume, 57));
    EXPECT_EQ(tune.Steps[2].Volume, 57);
    EXPECT_EQ(ValidSteps(), "134");
    EXPECT_FALSE(tune.TuneWaveValid);
    MakeSteps(4);
    EXPECT_TRUE(ClickStrip(tune, 2, StripPlace::Duration, 200));
    EXPECT_EQ(tune.Steps[2].Duration, 200);
    EXPECT_EQ(ValidSteps(), "134");
}

TEST_F(StepEditsTest, ChangesNothingBesideThePlacesOfTheStripOrToTheSameValue)
{
    EXPECT_FALSE(ClickStrip(tune, 2, StripPlace::None, 57));
    EXPECT_FALSE(ClickStrip(tune, 2, StripPlace::Duration, 100));
    EXPECT_EQ(ValidSteps(), "1234");
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, DrawsABarBy5PercentAPixel)
{
    EXPECT_TRUE(DragDuration(tune.Steps[1], 3));
    EXPECT_EQ(tune.Steps[1].Duration, 115);
    EXPECT_TRUE(DragDuration(tune.Steps[1], 100));
    EXPECT_EQ(tune.Steps[1].Duration, 200);
    EXPECT_FALSE(DragDuration(tune.Steps[1], 1));
    EXPECT_TRUE(DragDuration(tune.Steps[1], -1000));
    EXPECT_EQ(tune.Steps[1].Duration, 0);
    EXPECT_TRUE(DragDuration(tune.Steps[1], 1)) << "a bar of two caps can be drawn out again";
}

TEST_F(StepEditsTest, KeepsWhatIsRenderedWhileABarIsDrawn)
{
    EXPECT_TRUE(DragDuration(tune.Steps[1], 3));
    EXPECT_EQ(ValidSteps(), "1234");
    EXPECT_TRUE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, GivesTheFirstBeatToAllLaterStepsWithoutOne)
{
    tune.Steps[3].StepBeat.Name = "Flute";
    tune.Steps[4].OnPos = 0;
    ChangeStepBeat(tune, 2, LoadedBeat("Drum"));
    EXPECT_EQ(tune.Steps[1].StepBeat.Name, "");
    EXPECT_EQ(tune.Steps[2].StepBeat.Name, "Drum");
    EXPECT_TRUE(tune.Steps[2].StepBeat.Loaded);
    EXPECT_EQ(tune.Steps[3].StepBeat.Name, "Flute");
    EXPECT_EQ(tune.Steps[4].StepBeat.Name, "Drum");
    EXPECT_EQ(ValidSteps(), "13");
    EXPECT_FALSE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, ChangesAllBeatsOnOrOff)
{
    tune.Steps[2].StepBeat.Name = "Flute";
    tune.Steps[3].OnPos = 0;
    ChangeAllBeats(tune, LoadedBeat("Drum"));
    for (std::int32_t step = 1; step <= 4; ++step)
        EXPECT_EQ(At(tune.Steps, step).StepBeat.Name, "Drum");
    EXPECT_EQ(ValidSteps(), "");
    EXPECT_FALSE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, RepeatsThePatternOfACycleThatGrows)
{
    MakeSteps(3);
    ChangeStepCount(tune, 8);
    EXPECT_EQ(Origins(), "12312312");
    EXPECT_EQ(tune.Steps.size(), 9U);
    EXPECT_EQ(ValidSteps(), "12345678");
    EXPECT_FALSE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, LosesTheEndOfACycleThatShrinks)
{
    ChangeStepCount(tune, 2);
    EXPECT_EQ(Origins(), "12");
    EXPECT_EQ(tune.Steps.size(), 3U);
    EXPECT_FALSE(tune.TuneWaveValid);
}

TEST_F(StepEditsTest, GrowsACycleWithoutSteps)
{
    MakeSteps(0);
    ChangeStepCount(tune, 2);
    EXPECT_EQ(tune.Steps[2].OnPos, 0);
    EXPECT_EQ(tune.Steps[2].Duration, 100);
}

TEST(TypedStepCount, Takes2To64Rounded)
{
    EXPECT_EQ(TypedStepCount("2"), 2);
    EXPECT_EQ(TypedStepCount(" 64 "), 64);
    EXPECT_EQ(TypedStepCount("12 steps"), 12);
    EXPECT_EQ(TypedStepCount("1.5"), 2);
    EXPECT_EQ(TypedStepCount("64.5"), 64);
    EXPECT_EQ(TypedStepCount("10.5"), 10);
}

TEST(TypedStepCount, RefusesAllElse)
{
    for (const char* answer : {"1", "65", "64.6", "1.4", "-8", "", "many", "1e99", "0"})
        EXPECT_EQ(TypedStepCount(answer), std::nullopt) << answer;
}

TEST_F(StepEditsTest, AKeyTakesAPitchThatIsAsFarAsFilesAllow)
{
    for (const std::int32_t farthest : {64, -64}) {
        tune.Steps[3].PitchShift = farthest;
        EXPECT_EQ(ClickKey(tune, 3, 5), (KeyClick{true, true})) << farthest;
        EXPECT_EQ(tune.Steps[3].PitchShift, 5);
    }
}

} // namespace
} // namespace sprout
