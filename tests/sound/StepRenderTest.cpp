// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TuneRender.h"

#include <gtest/gtest.h>

#include <vector>

#include "sound/TuneRenderTest.h"

namespace sprout {
namespace {

using RenderStepTest = TuneRenderTest;

TEST_F(RenderStepTest, AtFullVolumeALoudBeatPassesUnclipped)
{
    const std::int32_t beat = AddBeat(LevelWave(600, 32767));
    EXPECT_EQ(RenderStep(StepOf(beat)), LevelWave(600, 32767));
    EXPECT_EQ(services.screen.hourglassesShown, 1);
    ExpectSignsRestored();
}

TEST_F(RenderStepTest, AnyOtherVolumeClipsAt80Percent)
{
    TuneStep step = StepOf(AddBeat(LevelWave(600, 32767)));
    step.Volume = 99;
    EXPECT_EQ(RenderStep(step), LevelWave(600, 26214));
    step.Volume = 200;
    EXPECT_EQ(RenderStep(step), LevelWave(600, 26214));
    step.Volume = 50;
    EXPECT_EQ(RenderStep(step), LevelWave(600, 16384));
}

TEST_F(RenderStepTest, RunsTheStretchAlsoAtFactorsOfOne)
{
    static_cast<void>(RenderStep(StepOf(AddBeat(RampWave(600)))));
    ASSERT_EQ(Calls(), 2u);
    EXPECT_EQ(services.stretch.Calls()[0].pitchFactor, 1.0f);
    EXPECT_EQ(services.stretch.Calls()[0].durationFactor, 1.0f);
}

TEST_F(RenderStepTest, PitchBeyondAnOctaveSoundsAsTheOctave)
{
    TuneStep step = StepOf(AddBeat(LevelWave(600, 1)));
    for (const std::int32_t pitch : {12, 14, 1000000000, -12, -20})
        step.PitchShift = pitch, static_cast<void>(RenderStep(step));
    ASSERT_EQ(Calls(), 2u) << "one rendering an octave";
    EXPECT_EQ(services.stretch.Calls()[0].pitchFactor, 2.0f);
    EXPECT_EQ(services.stretch.Calls()[1].pitchFactor, 0.5f);
}

TEST_F(RenderStepTest, ABeatIndexOutsideTheSongSoundsTheTestTone)
{
    AddBeat(LevelWave(600, 5));
    for (const std::int32_t index : {0, -1, 2, 1000000000})
        EXPECT_EQ(RenderStep(StepOf(index)), Shared().TestTone) << index;
    EXPECT_EQ(Calls(), 1u) << "all of them share one rendering";
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(RenderStepTest, ABeatWithoutSoundIsSilent)
{
    const std::int32_t beat = AddBeat(WaveData());
    EXPECT_EQ(RenderStep(StepOf(beat)), EmptyWave());
    EXPECT_EQ(Calls(), 0u);
    ExpectSignsRestored();
}

TEST_F(RenderStepTest, AShortBeatCountsItsLengthAfterTheConversion)
{
    const WaveData low = MonoWave(SampleList(128, 3), 11025, 16);
    EXPECT_EQ(RenderStep(StepOf(AddBeat(low))), MonoWave(SampleList(512, 3)));
    const WaveData shorter = MonoWave(SampleList(127, 3), 11025, 16);
    EXPECT_EQ(RenderStep(StepOf(AddBeat(shorter))).Length, 0);
    EXPECT_EQ(RenderStep(StepOf(AddBeat(RampWave(511)))).Length, 0);
}

TEST_F(RenderStepTest, ABeatThatDiffersInBitsOrRateAloneIsConverted)
{
    const WaveData eightBits = MonoWave(SampleList(600, 3), 44100, 8);
    EXPECT_EQ(RenderStep(StepOf(AddBeat(eightBits))), MonoWave(SampleList(600, 768)));
    const WaveData halfRate = MonoWave(SampleList(600, 3), 22050, 16);
    EXPECT_EQ(RenderStep(StepOf(AddBeat(halfRate))), MonoWave(SampleList(1200, 3)));
}

TEST_F(RenderStepTest, LoadsABeatOfTheSongOnFirstUse)
{
    SaveBeat("Drum", LevelWave(700, 9));
    const std::int32_t beat = AddBeat(WaveData(), "Drum");
    At(Shared().Song.SongBeats, beat).Loaded = false;
    EXPECT_EQ(RenderStep(StepOf(beat)), LevelWave(700, 9));
    EXPECT_TRUE(At(Shared().Song.SongBeats, beat).Loaded);
    EXPECT_EQ(At(Shared().Song.SongBeats, beat).Sound, LevelWave(700, 9));
}

TEST_F(RenderStepTest, ARunTimeErrorIsSilent)
{
    WaveData broken = RampWave(600);
    broken.Length = 601;
    EXPECT_EQ(RenderStep(StepOf(AddBeat(broken))), EmptyWave());
    Shared().Song.SongBeatCount = 5;
    EXPECT_EQ(RenderStep(StepOf(5)), EmptyWave());
    ExpectSignsRestored();
}

TEST_F(RenderStepTest, TakesABeatOfAnUnknownFormatAsItStands)
{
    WaveData strange = RampWave(600);
    strange.Bits = 24;
    strange.Rate = 0;
    EXPECT_EQ(RenderStep(StepOf(AddBeat(strange))), strange);
}

TEST_F(RenderStepTest, AFailedStretchIsSilentAndTriedAgain)
{
    const TuneStep step = StepOf(AddBeat(LevelWave(600, 5)));
    services.stretch.fails = true;
    EXPECT_EQ(RenderStep(step).Length, 0);
    services.stretch.fails = false;
    EXPECT_EQ(RenderStep(step), LevelWave(600, 5));
}

TEST(RenderOwnBeatStep, TakesTheStepsOwnBeat)
{
    const FakeServices services;
    Shared().TestTone = MakeTestTone();
    TuneStep step = StepOf(AddBeat(LevelWave(600, 5)));
    EXPECT_EQ(RenderOwnBeatStep(step), Shared().TestTone) << "no name";
    step.StepBeat.Name = "Mine";
    step.StepBeat.Sound = LevelWave(600, 7);
    step.StepBeat.Loaded = true;
    EXPECT_EQ(RenderOwnBeatStep(step), LevelWave(600, 7));
    EXPECT_FALSE(step.StepWaveValid);
    EXPECT_EQ(step.StepWave.Length, 0);
}

TEST_F(TuneRenderTest, TheOwnBeatIsLoadedOnFirstUseAndStays)
{
    SaveBeat("Bell", LevelWave(800, 4));
    TuneStep step;
    step.StepBeat.Name = "Bell";
    EXPECT_EQ(RenderOwnBeatStep(step), LevelWave(800, 4));
    EXPECT_TRUE(step.StepBeat.Loaded);
    EXPECT_EQ(step.StepBeat.Sound, LevelWave(800, 4));
}

TEST_F(TuneRenderTest, AStepWhoseFileFailsTellsAndIsSilent)
{
    WriteBytes(Shared().UserBeats / "Bad.wav", "not a wave");
    TuneStep step;
    step.StepBeat.Name = "Bad";
    EXPECT_EQ(RenderOwnBeatStep(step).Length, 0);
    ASSERT_EQ(services.messages.shown.size(), 1u);
    EXPECT_EQ(services.messages.shown[0].text, "No wave Data found in file");
}

} // namespace
} // namespace sprout
