// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StepPlays.h"

#include "sound/PlayTest.h"
#include "sound/TuneRender.h"
#include "support/Flags.h"

namespace sprout {
namespace {

constexpr std::int32_t kBeatFrames = 1000;

class StepPlaysTest : public PlayTest {
protected:
    StepPlaysTest()
    {
        step.OnPos = 1;
        step.StepBeat.Name = "Drum";
        step.StepBeat.Sound = CountingWave(kBeatFrames);
        step.StepBeat.Loaded = true;
        step.Duration = 200;
    }

    TuneStep step;
};

TEST_F(StepPlaysTest, RendersAStaleStepAndPlaysIt)
{
    PlayStepSound(step);
    EXPECT_TRUE(step.StepWaveValid);
    EXPECT_EQ(play.PlayLength, 2 * kBeatFrames);
    EXPECT_EQ(display.status, "Playing Beat");
    EXPECT_FALSE(play.PlayLooping);
}

TEST_F(StepPlaysTest, PlaysAValidStepAsItIs)
{
    step.StepWave = CountingWave(700);
    SetStepWaveValid(step, true);
    PlayStepSound(step);
    EXPECT_EQ(play.PlayLength, 700);
    EXPECT_TRUE(services.stretch.Calls().empty());
}

TEST_F(StepPlaysTest, LeavesAStepThatRendersToNothingStaleAndSilent)
{
    services.stretch.fails = true;
    PlayStepSound(step);
    EXPECT_FALSE(step.StepWaveValid);
    EXPECT_EQ(display.status, "Ready");
    PlayStepBeat(step);
    EXPECT_EQ(display.status, "Ready");
}

TEST_F(StepPlaysTest, PlaysTheBeatAsItIsInItsFile)
{
    PlayStepBeat(step);
    EXPECT_TRUE(step.StepWaveValid);
    EXPECT_EQ(play.PlayLength, kBeatFrames);
    EXPECT_EQ(display.status, "Playing Step");
}

TEST_F(StepPlaysTest, PlaysNoBeatThatIsNotLoaded)
{
    Shared().TestTone = CountingWave(kBeatFrames);
    step.StepBeat = Beat();
    PlayStepBeat(step);
    EXPECT_TRUE(step.StepWaveValid) << "the test tone stands in";
    EXPECT_EQ(display.status, "Ready");
}

TEST_F(StepPlaysTest, RendersAndPlaysATuneBehindItsLeadIn)
{
    Tune tune;
    tune.StepCount = 2;
    tune.Steps = {TuneStep(), step, TuneStep()};
    PlayEditedTune(tune, 0.75F);
    EXPECT_TRUE(tune.TuneWaveValid);
    EXPECT_EQ(play.PlayLength, 33075 + tune.TuneWave.Length);
    EXPECT_EQ(services.playDisplay.tunesShown, 1);
    EXPECT_EQ(display.status, "Playing Tune");
    const std::size_t leadIn = 33075 * 4;
    const std::size_t tail = 2205 * 4;
    EXPECT_EQ(sound.pcm.size(), leadIn + static_cast<std::size_t>(tune.TuneWave.Length) * 4 + tail);
    EXPECT_EQ(sound.pcm[leadIn - 4], std::byte{0});
    EXPECT_NE(sound.pcm[leadIn], std::byte{0});
}

TEST_F(StepPlaysTest, PlaysATuneAtOnceWithoutALeadIn)
{
    Tune tune;
    tune.StepCount = 2;
    tune.Steps = {TuneStep(), step, TuneStep()};
    tune.TuneWave = CountingWave(500);
    SetTuneWaveValid(tune, true);
    PlayEditedTune(tune, 0);
    EXPECT_EQ(play.PlayLength, 500);
    EXPECT_EQ(services.playDisplay.tunesShown, 0);
    EXPECT_EQ(display.status, "Playing Tune");
}

} // namespace
} // namespace sprout
