// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TuneRender.h"

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <utility>
#include <vector>

#include "sound/TuneRenderTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

TEST_F(TuneRenderTest, ACycleOfOffStepsIsSilentAndOneFrameLongerThanItsCells)
{
    for (const std::int32_t tempo : {320, 160, 333}) {
        Shared().Song.Tempo = tempo;
        Tune tune = MakeTune(16);
        RenderStarCycle(tune);
        const double frames = 16 * (60.0 / tempo) * 44100;
        EXPECT_EQ(tune.TuneWave.Length, std::lrint(frames) + 1);
        EXPECT_EQ(ListOf(tune.TuneWave.WavL), SampleList(static_cast<std::size_t>(tune.TuneWave.Length), 0));
        EXPECT_TRUE(tune.TuneWaveValid);
    }
    EXPECT_EQ(services.screen.processPicsShown, 3);
    ExpectSignsRestored();
}

TEST_F(TuneRenderTest, StepsSoundAtTheirCellsAndTheSumIsClippedAt80Percent)
{
    Tune tune = MakeTune(3);
    SetStep(tune, 1, AddBeat(LevelWave(600, 20000)));
    SetStep(tune, 3, AddBeat(LevelWave(kCellFrames + 600, 30000)));
    RenderStarCycle(tune);
    ASSERT_EQ(tune.TuneWave.Length, 3 * kCellFrames + 600) << "a beat that rings on makes the wave longer";
    EXPECT_EQ(tune.TuneWave.WavL[1], 20000);
    EXPECT_EQ(tune.TuneWave.WavL[600], 20000);
    EXPECT_EQ(tune.TuneWave.WavL[601], 0);
    EXPECT_EQ(tune.TuneWave.WavL[2 * kCellFrames], 0);
    EXPECT_EQ(tune.TuneWave.WavR[2 * kCellFrames + 1], 26214);
    EXPECT_EQ(tune.TuneWave.WavR[3 * kCellFrames + 600], 26214);
}

TEST_F(TuneRenderTest, EqualStepsOfACycleShareOneRenderingAndAllBecomeValid)
{
    const std::int32_t beat = AddBeat(LevelWave(600, 100));
    Tune tune = MakeTune(4);
    SetStep(tune, 1, beat);
    SetStep(tune, 2, beat).Volume = 50;
    SetStep(tune, 4, beat);
    RenderStarCycle(tune);
    EXPECT_EQ(Calls(), 2u);
    EXPECT_TRUE(tune.Steps[1].StepWaveValid && tune.Steps[2].StepWaveValid && tune.Steps[4].StepWaveValid);
    EXPECT_FALSE(tune.Steps[3].StepWaveValid);
    EXPECT_TRUE(tune.Steps[4].StepWave.WavL.SharesBlockWith(tune.Steps[1].StepWave.WavL));
}

TEST_F(TuneRenderTest, AStepOfAnotherPitchOrDurationHasASoundOfItsOwn)
{
    const std::int32_t beat = AddBeat(LevelWave(600, 100));
    Tune tune = MakeTune(4);
    for (std::int32_t number = 1; number <= 4; ++number)
        SetStep(tune, number, beat).StepBeat.Name = "Drum";
    At(tune.Steps, 2).PitchShift = 12;
    At(tune.Steps, 3).PitchShift = -12;
    At(tune.Steps, 4).Duration = 200;
    for (std::int32_t number = 1; number <= 4; ++number) {
        At(tune.Steps, number).StepBeat.Sound = LevelWave(600, 200);
        At(tune.Steps, number).StepBeat.Loaded = true;
    }
    const RenderThreads one(1);
    Tune edited = tune;
    RenderStarCycle(tune);
    RenderTuneCycle(edited);
    const auto calls = services.stretch.Calls();
    ASSERT_EQ(calls.size(), 8u);
    for (const std::size_t first : {0u, 4u}) {
        EXPECT_EQ(calls[first].pitchFactor, 1.0f);
        EXPECT_EQ(calls[first + 1].pitchFactor, 2.0f);
        EXPECT_EQ(calls[first + 2].pitchFactor, 0.5f);
        EXPECT_EQ(calls[first + 3].durationFactor, 2.0f);
    }
    EXPECT_EQ(At(tune.Steps, 4).StepWave, LevelWave(1200, 100));
    EXPECT_EQ(At(edited.Steps, 4).StepWave, LevelWave(1200, 200));
}

TEST_F(TuneRenderTest, MemoryThatRunsOutIsToldToTheCallerAndTheTuneStaysToBeRendered)
{
    Tune tune = MakeTune(2);
    SetStep(tune, 1, AddBeat(LevelWave(600, 100)));
    services.stretch.lacksMemory = true;
    EXPECT_THROW(RenderStarCycle(tune), std::bad_alloc);
    EXPECT_THROW(RenderTuneCycle(tune), std::bad_alloc);
    EXPECT_THROW(static_cast<void>(RenderStep(tune.Steps[1])), std::bad_alloc);
    EXPECT_FALSE(tune.TuneWaveValid);
    EXPECT_FALSE(tune.Steps[1].StepWaveValid);
    ExpectSignsRestored();
    services.stretch.lacksMemory = false;
    RenderStarCycle(tune);
    EXPECT_TRUE(tune.TuneWaveValid);
    EXPECT_EQ(tune.TuneWave.WavL[1], 100);
}

TEST_F(TuneRenderTest, AValidStepKeepsItsWaveAndLendsItToEqualOnes)
{
    Tune tune = MakeTune(3);
    SetStep(tune, 1, 0);
    SetStep(tune, 2, 0);
    At(tune.Steps, 1).StepWave = LevelWave(2, 77);
    SetStepWaveValid(At(tune.Steps, 1), true);
    At(tune.Steps, 3).StepWave = LevelWave(2, 88); // off, therefore silent
    SetStepWaveValid(At(tune.Steps, 3), true);
    RenderStarCycle(tune);
    EXPECT_EQ(Calls(), 0u);
    EXPECT_EQ(tune.TuneWave.WavL[1], 77);
    EXPECT_EQ(tune.TuneWave.WavL[kCellFrames + 2], 77);
    EXPECT_EQ(tune.TuneWave.Length, 3 * kCellFrames + 1);
    EXPECT_EQ(tune.TuneWave.WavL[2 * kCellFrames + 1], 0);
}

TEST_F(TuneRenderTest, TheFirstOfTheEqualStepsLends)
{
    Tune tune = MakeTune(3);
    for (std::int32_t i = 1; i <= 3; ++i) {
        SetStep(tune, i, 0).StepWave = LevelWave(2, static_cast<std::int16_t>(70 + i));
        SetStepWaveValid(At(tune.Steps, i), i < 3);
    }
    RenderStarCycle(tune);
    EXPECT_EQ(tune.TuneWave.WavL[2 * kCellFrames + 1], 71);
}

TEST_F(TuneRenderTest, OnlyTheValue1IsOn)
{
    Tune tune = MakeTune(1);
    SetStep(tune, 1, 0).OnPos = 2;
    At(tune.Steps, 1).StepWave = LevelWave(2, 77); // from when it was on
    RenderStarCycle(tune);
    EXPECT_EQ(Calls(), 0u);
    EXPECT_FALSE(tune.Steps[1].StepWaveValid);
    EXPECT_EQ(tune.TuneWave.Length, kCellFrames + 1);
    EXPECT_EQ(tune.TuneWave.WavL[1], 0);
}

TEST_F(TuneRenderTest, OnlyOnStepsLend)
{
    const std::int32_t beat = AddBeat(LevelWave(600, 5));
    Tune tune = MakeTune(2);
    At(tune.Steps, 1).BeatIndex = beat;
    At(tune.Steps, 1).StepWave = LevelWave(2, 77);
    SetStepWaveValid(At(tune.Steps, 1), true);
    SetStep(tune, 2, beat);
    RenderStarCycle(tune);
    EXPECT_EQ(tune.TuneWave.WavL[kCellFrames + 1], 5);
}

TEST_F(TuneRenderTest, TheTuneUnderEditComparesTheNamesOfItsBeats)
{
    Tune tune = MakeTune(4);
    const auto own = [&tune](std::int32_t number, const std::string& name, std::int16_t level) {
        TuneStep& step = SetStep(tune, number, number);
        step.StepBeat.Name = name;
        step.StepBeat.Sound = LevelWave(600, level);
        step.StepBeat.Loaded = true;
    };
    own(1, "Drum", 10);
    own(2, "Drum", 20);
    own(3, "drum", 30);
    SetStep(tune, 4, 1);
    RenderTuneCycle(tune);
    EXPECT_EQ(tune.TuneWave.WavL[1], 10);
    EXPECT_EQ(tune.TuneWave.WavL[kCellFrames + 1], 10) << "the name decides";
    EXPECT_EQ(tune.TuneWave.WavL[2 * kCellFrames + 1], 30) << "in its exact letters";
    EXPECT_EQ(tune.Steps[4].StepWave, Shared().TestTone);
}

TEST_F(TuneRenderTest, StepsThatCopyDoNotLoadTheirBeats)
{
    SaveBeat("Drum", LevelWave(600, 8));
    Tune tune = MakeTune(2);
    SetStep(tune, 1, 0).StepBeat.Name = "Drum";
    SetStep(tune, 2, 0).StepBeat.Name = "Drum";
    RenderTuneCycle(tune);
    EXPECT_TRUE(tune.Steps[1].StepBeat.Loaded);
    EXPECT_FALSE(tune.Steps[2].StepBeat.Loaded);
    EXPECT_EQ(tune.TuneWave.WavL[kCellFrames + 1], 8);
}

TEST_F(TuneRenderTest, MessagesOfBeatsComeInTheOrderOfTheSteps)
{
    Tune tune = MakeTune(3);
    for (std::int32_t i = 1; i <= 3; ++i) {
        const std::string name = "Bad" + std::to_string(4 - i);
        WriteBytes(Shared().UserBeats / (name + ".wav"), "x");
        SetStep(tune, i, 0).StepBeat.Name = name;
    }
    RenderTuneCycle(tune);
    ASSERT_EQ(services.messages.shown.size(), 3u);
    EXPECT_NE(services.messages.shown[0].title.find("Bad3"), std::string::npos);
    EXPECT_NE(services.messages.shown[2].title.find("Bad1"), std::string::npos);
}

TEST_F(TuneRenderTest, AFailedCycleIsEmptyAndValid)
{
    for (const std::int32_t tempo : {0, -320, 1}) {
        Shared().Song.Tempo = tempo;
        Tune tune = MakeTune(tempo == 1 ? 64 : 16);
        SetStep(tune, 2, 0);
        tune.TuneWave = LevelWave(5, 5);
        RenderStarCycle(tune);
        EXPECT_EQ(tune.TuneWave, EmptyWave()) << tempo;
        EXPECT_TRUE(tune.TuneWaveValid);
        EXPECT_TRUE(tune.Steps[2].StepWaveValid);
    }
    ExpectSignsRestored();
    EXPECT_TRUE(services.messages.shown.empty());
}

TEST_F(TuneRenderTest, ATuneWithFewerStepsThanItTellsFailsQuietly)
{
    for (const std::int32_t count : {4, 1000000000, -1}) {
        Tune tune = MakeTune(3);
        SetStep(tune, 3, 0);
        tune.StepCount = count;
        RenderStarCycle(tune);
        EXPECT_EQ(tune.TuneWave, EmptyWave());
        EXPECT_TRUE(tune.TuneWaveValid);
    }
    Tune none = MakeTune(0);
    RenderTuneCycle(none);
    EXPECT_EQ(none.TuneWave.Length, 1);
}

TEST_F(TuneRenderTest, StepsBeforeAFailureAreRendered)
{
    WaveData broken = RampWave(600);
    broken.Length = 601;
    Tune tune = MakeTune(4);
    SetStep(tune, 1, AddBeat(LevelWave(600, 1)));
    SetStep(tune, 2, AddBeat(broken));
    SetStep(tune, 3, AddBeat(LevelWave(600, 3)));
    SetStep(tune, 4, 1);
    EXPECT_THROW(RenderTrackSteps(tune), RunTimeError);
    EXPECT_TRUE(tune.Steps[1].StepWaveValid);
    EXPECT_FALSE(tune.Steps[2].StepWaveValid);
    EXPECT_FALSE(tune.Steps[3].StepWaveValid);
    EXPECT_EQ(tune.Steps[4].StepWave.Length, 0);
}

TEST_F(TuneRenderTest, AStepOfATrackThatCopiesDoesNotBecomeValid)
{
    const std::int32_t beat = AddBeat(LevelWave(600, 5));
    Tune tune = MakeTune(3);
    SetStep(tune, 1, beat);
    SetStep(tune, 3, beat);
    RenderTrackSteps(tune);
    EXPECT_TRUE(tune.Steps[1].StepWaveValid);
    EXPECT_FALSE(tune.Steps[3].StepWaveValid);
    EXPECT_EQ(tune.Steps[3].StepWave, LevelWave(600, 5));
    // The search is repeated the next time.
    At(tune.Steps, 1).StepWave = LevelWave(2, 6);
    RenderTrackSteps(tune);
    EXPECT_EQ(tune.Steps[3].StepWave, LevelWave(2, 6));
    // An invalid copy is not reused: without the first step the third is rendered itself.
    At(tune.Steps, 1).OnPos = 0;
    RenderTrackSteps(tune);
    EXPECT_TRUE(tune.Steps[3].StepWaveValid);
    EXPECT_EQ(tune.Steps[3].StepWave, LevelWave(600, 5));
}

TEST_F(TuneRenderTest, EqualStepsOfSeveralTunesAreStretchedOnce)
{
    const std::int32_t beat = AddBeat(LevelWave(600, 5));
    Tune first = MakeTune(1);
    SetStep(first, 1, beat);
    Tune second = MakeTune(2);
    SetStep(second, 2, beat);
    Tune* const both[] = {&first, &second};
    RenderTrackSteps(both, SharedSetting());
    EXPECT_EQ(Calls(), 1u);
    EXPECT_TRUE(second.Steps[2].StepWaveValid) << "it renders for itself, as tune after tune would";
    EXPECT_EQ(services.screen.lastProgress, (std::pair<std::size_t, std::size_t>(1, 1)));
}

/// A tune with many different steps and a few equal ones.
Tune ManySteps()
{
    Tune tune = MakeTune(40);
    for (std::int32_t i = 1; i <= 40; ++i) {
        TuneStep& step = SetStep(tune, i, i % 3 + 1);
        step.PitchShift = i % 7;
        step.Duration = 100 + 10 * (i % 4);
        step.Volume = i % 5 == 0 ? 60 : 100;
    }
    return tune;
}

TEST_F(TuneRenderTest, CacheAndThreadsAreInvisibleInTheSamples)
{
    AddBeat(RampWave(900, 1));
    AddBeat(MonoWave(SampleList(700, 11), 22050, 16));
    Tune expected = ManySteps();
    TheStepCache().SetMostBytes(0);
    {
        const RenderThreads one(1);
        RenderStarCycle(expected);
    }
    EXPECT_EQ(TheStepCache().Count(), 0u);
    for (const std::size_t bound : {StepCache::kMostBytes, std::size_t{0}, std::size_t{9000}})
        for (const std::size_t threads : {0u, 1u, 4u})
            for (int round = 0; round < 2; ++round) {
                const RenderThreads most(threads);
                TheStepCache().SetMostBytes(bound);
                Tune tune = ManySteps();
                RenderStarCycle(tune);
                EXPECT_EQ(tune.TuneWave, expected.TuneWave) << bound << ' ' << threads;
            }
}

TEST_F(TuneRenderTest, ASecondTuneTakesItsSoundsFromTheCache)
{
    AddBeat(LevelWave(900, 1));
    Tune first = ManySteps();
    RenderStarCycle(first);
    const std::size_t calls = Calls();
    Tune second = ManySteps();
    RenderStarCycle(second);
    EXPECT_EQ(Calls(), calls);
    EXPECT_EQ(second.TuneWave, first.TuneWave);
}

} // namespace
} // namespace sprout
