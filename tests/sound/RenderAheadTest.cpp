// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/RenderAhead.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "core/SongChanges.h"
#include "sound/AheadTest.h"
#include "sound/SameSong.h"
#include "sound/TuneRender.h"
#include "support/Flags.h"

namespace sprout {
namespace {

class RenderAheadTest : public AheadTest {
protected:
    RenderAheadTest() : ahead(std::make_unique<RenderAhead>(Threads())), song(Shared().Song) {}
    ~RenderAheadTest() override
    {
        stretch.gate.Open();
        begun.Open();
        ahead.reset();
    }

    /// What the interface does when it is told that there are results, until nothing is left to do.
    void Finish()
    {
        for (ahead->TakeResults(); !ahead->IsAtRest(); ahead->TakeResults())
            bell.WaitForNext();
    }

    void RenderAll()
    {
        ahead->Begin();
        ahead->AllowMix();
        Finish();
    }

    [[nodiscard]] std::size_t Calls() const { return services.stretch.Calls().size(); }

    std::unique_ptr<RenderAhead> ahead;
    SongState& song;
};

TEST_F(RenderAheadTest, PutsTheStepsIntoTheCacheAndLeavesTheSongAlone)
{
    const std::int32_t beat = AddToneBeat(5);
    AddPitchTrack(beat, {1, 2, 3}, 1, 5);
    const SongState before = song;
    ahead->Begin();
    Finish();
    EXPECT_EQ(Calls(), 3u);
    for (const std::int32_t pitch : {1, 2, 3})
        EXPECT_NE(TheStepCache().Find(KeyOf(beat, pitch)), nullptr) << pitch;
    ExpectSame(song, before);
    EXPECT_FALSE(ahead->HasMix()) << "nobody allowed it yet";
    EXPECT_EQ(services.screen.processPicsShown, 0);
    MixSong();
    EXPECT_EQ(Calls(), 3u);
}

TEST_F(RenderAheadTest, ThePlayOnlyTakesTheMixOver)
{
    AddPitchTrack(AddToneBeat(5), {1, 2, 3}, 1, 5);
    const SongState before = song;
    RenderAll();
    EXPECT_TRUE(ahead->HasMix());
    ExpectSame(song, before);
    const std::size_t calls = Calls();
    TheStepCache().Clear(); // from here on a render would call the service
    MixSong();
    EXPECT_EQ(Calls(), calls);
    EXPECT_FALSE(ahead->HasMix());
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_FALSE(ahead->WasInterrupted());
    EXPECT_EQ(services.screen.processPicsShown, 1) << "the sign of the play";
    ExpectSignsRestored();
}

TEST_F(RenderAheadTest, AMixMayBeAllowedBeforeTheStepsAreThere)
{
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    stretch.gate.Close();
    ahead->Begin();
    ahead->AllowMix();
    stretch.gate.Open();
    Finish();
    EXPECT_TRUE(ahead->HasMix());
}

/// Songs of all kinds, by the name of what is odd about them.
struct Kind {
    const char* name;
    std::function<void()> make;
};

const Kind kKinds[] = {
    {"plain", [] {}},
    {"without tracks", [] { Shared().Song = SongState(); }},
    {"without paint", [] { Paint(1, 1, 200, kErasedCell); }},
    {"fast", [] { Shared().Song.Tempo = 640; }},
    {"no tempo", [] { Shared().Song.Tempo = 0; }},
    {"a negative tempo", [] { Shared().Song.Tempo = -3; }},
    {"a tempo beyond all measure", [] { Shared().Song.Tempo = 2147483647; }},
    {"an audio track",
     [] {
         AddAudioTrack(RampWave(70000));
         Paint(Shared().Song.TrackCount, 2, 90);
     }},
    {"an audio track without sound", [] { TrackAt(AddAudioTrack(EmptyWave())).FirstPainted = 1; }},
    {"an audio track without paint", [] { AddAudioTrack(RampWave(700)); }},
    {"an audio track without a rate",
     [] {
         TrackAt(AddAudioTrack(RampWave(700))).TrackAudio.Rate = 0;
         Paint(Shared().Song.TrackCount, 2, 9);
     }},
    {"a valid audio track",
     [] {
         Track& track = TrackAt(AddAudioTrack(RampWave(700)));
         track.TrackRender = RampWave(300);
         SetTrackRenderValid(track, true);
     }},
    {"only audio without paint",
     [] {
         Shared().Song = SongState();
         AddAudioTrack(RampWave(700));
     }},
    {"a track of an unknown kind", [] { TrackAt(1).TrackType = 7; }},
    {"fewer tracks than it says", [] { Shared().Song.TrackCount = 90; }},
    {"fewer beats than it says", [] { Shared().Song.SongBeatCount = 1; }},
    {"far fewer beats than it says",
     [] {
         Shared().Song.SongBeatCount = 900;
         At(TrackAt(1).TrackTune.Steps, 1).BeatIndex = 800;
     }},
    {"fewer steps than it says", [] { TrackAt(1).TrackTune.StepCount = 300; }},
    {"more steps than it says", [] { TrackAt(1).TrackTune.StepCount = 0; }},
    {"fewer cells than the song", [] { TrackAt(1).Painted.resize(5); }},
    {"a missing beat", [] { At(Shared().Song.SongBeats, 1).Loaded = false; }},
    {"a broken beat", [] { At(Shared().Song.SongBeats, 1).Sound.Length = 99999; }},
    {"an empty beat", [] { At(Shared().Song.SongBeats, 1).Sound = EmptyWave(); }},
    {"a short beat", [] { At(Shared().Song.SongBeats, 1).Sound = RampWave(100); }},
    {"a valid step",
     [] {
         TuneStep& step = At(TrackAt(1).TrackTune.Steps, 1);
         step.StepWave = RampWave(50);
         SetStepWaveValid(step, true);
     }},
    {"a mono beat at a low rate", [] { At(Shared().Song.SongBeats, 1).Sound = MonoWave(SampleList(900, 5), 11025); }},
    {"an odd sound in a step that is off",
     [] {
         TuneStep& step = At(TrackAt(1).TrackTune.Steps, 2);
         step.OnPos = kStepOff;
         step.StepWave = RampWave(50);
         step.StepWave.Length = 60;
     }},
};

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.name;
}

class AheadOfEverySongTest : public RenderAheadTest, public testing::WithParamInterface<Kind> {
protected:
    AheadOfEverySongTest()
    {
        for (std::int32_t seed = 1; seed <= 3; ++seed) {
            Tune tune = MakeTune(6);
            for (std::int32_t k = 1; k <= 6; ++k) {
                TuneStep& step = SetStep(tune, k, AddBeat(RampWave(5000 + 100 * k, seed)));
                step.PitchShift = k;
                step.Volume = k == 4 ? 70 : 100;
                step.Duration = k == 5 ? 150 : 100;
            }
            At(tune.Steps, 6) = At(tune.Steps, 1);
            Paint(AddTuneTrack(tune), seed, 30 * seed);
        }
        GetParam().make();
    }
};

TEST_P(AheadOfEverySongTest, APlayFindsWhatItWouldHaveMade)
{
    const SongState fresh = song;
    ahead.reset();
    MixSong();
    const SongState expected = std::exchange(song, fresh);
    const auto messages = services.messages.shown;
    services.messages.shown.clear();
    for (const bool withMix : {false, true}) {
        TheStepCache().Clear();
        song = fresh;
        ahead = std::make_unique<RenderAhead>(Threads());
        ahead->Begin();
        if (withMix)
            ahead->AllowMix();
        Finish();
        ExpectSame(song, fresh);
        EXPECT_TRUE(services.messages.shown.empty());
        MixSong();
        ExpectSame(song, expected);
        EXPECT_EQ(services.messages.shown, messages);
        services.messages.shown.clear();
        ahead.reset();
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, AheadOfEverySongTest, testing::ValuesIn(kKinds), [](const auto& kind) {
    std::string name = kind.param.name;
    std::erase(name, ' ');
    return name;
});

TEST_F(RenderAheadTest, AMissingBeatIsToldOnlyByThePlay)
{
    WriteBytes(Shared().UserBeats / "Bad.wav", "not a wave");
    At(song.SongBeats, AddBeat(WaveData(), "Bad")).Loaded = false;
    AddPitchTrack(1, {0}, 1, 1);
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    RenderAll();
    EXPECT_EQ(Calls(), 1u) << "of the beat that is there";
    EXPECT_FALSE(ahead->HasMix());
    EXPECT_TRUE(services.messages.shown.empty());
    MixSong();
    ASSERT_EQ(services.messages.shown.size(), 1u);
    EXPECT_EQ(services.messages.shown[0].text, "No wave Data found in file");
}

TEST_F(RenderAheadTest, WhatIsInTheCacheIsNotRenderedAgain)
{
    const std::int32_t beat = AddToneBeat(5);
    AddPitchTrack(beat, {1, 2}, 1, 5);
    TheStepCache().Keep(KeyOf(beat, 1), LevelWave(10, 1));
    RenderAll();
    ASSERT_EQ(Calls(), 1u);
    EXPECT_EQ(services.stretch.Calls()[0].pitchFactor, KeyOf(beat, 2).PitchFactor);
}

TEST_F(RenderAheadTest, AChangeDropsWhatIsNoLongerWantedWithoutWaiting)
{
    const RenderThreads one(1);
    const std::int32_t beat = AddToneBeat(5);
    AddPitchTrack(beat, {1, 2, 3, 4}, 1, 9);
    stretch.gate.Close();
    ahead->Begin();
    stretch.gate.WaitFor(1);
    At(TrackAt(1).TrackTune.Steps, 1).OnPos = kStepOff;
    At(TrackAt(1).TrackTune.Steps, 3).OnPos = kStepOff;
    ahead->Begin(); // returns while the service does not
    EXPECT_FALSE(ahead->IsAtRest());
    stretch.gate.Open();
    Finish();
    EXPECT_EQ(Calls(), 3u) << "the one that had begun, and the two that are wanted";
    EXPECT_EQ(TheStepCache().Find(KeyOf(beat, 1)), nullptr);
    EXPECT_EQ(TheStepCache().Find(KeyOf(beat, 3)), nullptr);
    EXPECT_NE(TheStepCache().Find(KeyOf(beat, 2)), nullptr);
    EXPECT_NE(TheStepCache().Find(KeyOf(beat, 4)), nullptr);
}

TEST_F(RenderAheadTest, AStepThatHasBegunAndIsStillWantedIsKept)
{
    const RenderThreads one(1);
    const std::int32_t beat = AddToneBeat(5);
    AddPitchTrack(beat, {1, 2}, 1, 9);
    stretch.gate.Close();
    ahead->Begin();
    stretch.gate.WaitFor(1);
    Paint(1, 12, 14);
    ahead->Begin();
    stretch.gate.Open();
    Finish();
    EXPECT_EQ(Calls(), 2u) << "none twice";
}

TEST_F(RenderAheadTest, AClosedProgramDoesNotWaitForTheService)
{
    AddPitchTrack(AddToneBeat(5), {1, 2, 3, 4, 5, 6, 7, 8, 9}, 1, 9);
    stretch.gate.Close();
    ahead->Begin();
    stretch.gate.WaitFor(1);
    ahead->Interrupt(); // returns while the service does not
    EXPECT_TRUE(ahead->WasInterrupted());
    EXPECT_FALSE(ahead->IsAtRest());
    stretch.gate.Open();
    Finish();
    EXPECT_LT(Calls(), 9u);
}

TEST_F(RenderAheadTest, APlayDoesNotWaitForAStepThatAThreadRenders)
{
    const RenderThreads one(1);
    AddPitchTrack(AddToneBeat(5), {1, 2, 3}, 1, 9);
    stretch.gate.Close();
    ahead->Begin();
    stretch.gate.WaitFor(1);
    MixSong(); // here the gate is open
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_GT(song.SongMix.Length, 0);
    EXPECT_EQ(Calls(), 3u);
    stretch.gate.Open();
    Finish();
    EXPECT_EQ(Calls(), 4u) << "the rest was dropped";
}

TEST_F(RenderAheadTest, AnInterruptedMixIsMadeWhenWorkBeginsAgain)
{
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    AddTuneTrack(MakeTune(1));
    ahead->Begin();
    Finish();
    begun.Close();
    ahead->AllowMix();
    begun.WaitFor(2);
    RenderStarCycle(TrackAt(2).TrackTune); // somebody waits for it
    EXPECT_TRUE(ahead->WasInterrupted());
    begun.Open();
    Finish();
    EXPECT_FALSE(ahead->HasMix());
    RenderAll();
    EXPECT_FALSE(ahead->WasInterrupted());
    EXPECT_TRUE(ahead->HasMix());
}

TEST_F(RenderAheadTest, AMixOfAnotherSongIsThrownAway)
{
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    RenderAll();
    ASSERT_TRUE(ahead->HasMix());
    Paint(1, 5, 5);
    SongChanges::PaintDragged(TrackAt(1)); // alone, as after a press on a painted cell
    MixSong();
    EXPECT_GT(song.SongMix.Length, 4 * kCellFrames) << "not the one without the new paint";
    EXPECT_FALSE(ahead->HasMix());
}

TEST_F(RenderAheadTest, AMixThatNoLongerFitsIsGoneWhenWorkBegins)
{
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    RenderAll();
    Paint(1, 9, 9);
    ahead->Begin();
    EXPECT_FALSE(ahead->HasMix());
    Finish();
}

TEST_F(RenderAheadTest, AMixThatComesTooLateIsThrownAway)
{
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    ahead->Begin();
    Finish();
    begun.Close();
    ahead->AllowMix();
    begun.WaitFor(2);
    Paint(1, 5, 5);
    begun.Open();
    Finish();
    EXPECT_FALSE(ahead->HasMix());
}

TEST_F(RenderAheadTest, AMixThatStillFitsIsKept)
{
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    RenderAll();
    const int threads = begun.Came();
    SongChanges::TitleChanged(song);
    RenderAll();
    EXPECT_TRUE(ahead->HasMix());
    EXPECT_EQ(begun.Came(), threads) << "nothing was begun";
}

TEST_F(RenderAheadTest, NothingIsLeftToDoAfterAPlay)
{
    AddPitchTrack(AddToneBeat(5), {1, 1}, 1, 2);
    RenderAll();
    MixSong();
    const int threads = begun.Came();
    RenderAll();
    EXPECT_EQ(begun.Came(), threads);
    EXPECT_FALSE(ahead->HasMix());
    EXPECT_TRUE(ahead->IsAtRest());
}

TEST_F(RenderAheadTest, AMixThatTakesTooMuchMemoryIsLeftToThePlay)
{
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    services.machine.memory.AvailableBytes = static_cast<std::uint64_t>(10 * MixBytes(song)) - 100;
    RenderAll();
    EXPECT_FALSE(ahead->HasMix());
    EXPECT_EQ(Calls(), 1u);
    services.machine.memory.AvailableBytes += 200;
    RenderAll();
    EXPECT_TRUE(ahead->HasMix());
}

TEST_F(RenderAheadTest, StepsThatDoNotFitIntoTheCacheAreLeftToThePlay)
{
    AddPitchTrack(AddToneBeat(5, 10000), {1, 2, 3, 4, 5, 6, 7, 8}, 1, 8);
    TheStepCache().SetMostBytes(100'000);
    RenderAll();
    EXPECT_GT(Calls(), 0u);
    EXPECT_EQ(TheStepCache().Count(), Calls()) << "nothing was rendered in vain";
    EXPECT_FALSE(ahead->HasMix());
}

TEST_F(RenderAheadTest, WithoutOneEverythingIsAsBefore)
{
    ahead.reset();
    AddPitchTrack(AddToneBeat(5), {1}, 1, 1);
    EXPECT_FALSE(RenderAhead::HandMixTo(song));
    RenderAhead::LetPlayRender();
    MixSong();
    EXPECT_GT(song.SongMix.Length, 0);
}

} // namespace
} // namespace sprout
