// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TrackRender.h"

#include <gtest/gtest.h>

#include <limits>
#include <new>
#include <vector>

#include "core/SongChanges.h"
#include "core/SongTime.h"
#include "sound/SongTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

using RenderTuneTrackTest = SongTest;

TEST_F(RenderTuneTrackTest, OnePaintedCellGivesTheLengthOfItsStep)
{
    const std::int32_t track = AddNumberedTrack(16);
    Paint(track, 30, 30);
    RenderTuneTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender, LevelWave(kBeatFrames, 1));
    EXPECT_EQ(TrackAt(track).FirstPainted, 30);
    EXPECT_TRUE(TrackAt(track).TrackRenderValid);
    EXPECT_EQ(services.screen.processPicsShown, 1);
    ExpectSignsRestored();
}

TEST_F(RenderTuneTrackTest, ARunLongerThanTheTuneBeginsItAgainAndAGapDoesToo)
{
    const std::int32_t track = AddNumberedTrack(16);
    Paint(track, 5, 24);
    Paint(track, 26, 28);
    RenderTuneTrack(track);
    const SampleList expected{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 1, 2, 3, 4, 0, 1, 2, 3};
    EXPECT_EQ(LevelsAtCells(TrackAt(track).TrackRender, 24), expected);
    EXPECT_EQ(TrackAt(track).TrackRender.Length, 23 * kCellFrames + kBeatFrames);
}

TEST_F(RenderTuneTrackTest, CellsOf0And2AreAlikeAndElement0IsNeverConsulted)
{
    const std::int32_t first = AddNumberedTrack(4);
    const std::int32_t second = AddTuneTrack(TrackAt(first).TrackTune);
    for (const std::int32_t track : {first, second}) {
        Paint(track, 3, 5);
        Paint(track, 8, 9);
    }
    Paint(second, 1, 2, 2);
    Paint(second, 6, 7, 2);
    At(TrackAt(second).Painted, 0) = 1;
    RenderTuneTrack(first);
    RenderTuneTrack(second);
    EXPECT_EQ(TrackAt(second).FirstPainted, 3);
    EXPECT_EQ(TrackAt(second).TrackRender, TrackAt(first).TrackRender);
    EXPECT_EQ(LevelsAtCells(TrackAt(second).TrackRender, 7), (SampleList{1, 2, 3, 0, 0, 1, 2}));
}

TEST_F(RenderTuneTrackTest, AStepThatIsOffTakesItsCellInSilence)
{
    const std::int32_t track = AddNumberedTrack(3);
    At(TrackAt(track).TrackTune.Steps, 1).OnPos = 0;
    At(TrackAt(track).TrackTune.Steps, 3).OnPos = 2;
    At(TrackAt(track).TrackTune.Steps, 3).StepWave = LevelWave(kBeatFrames, 9); // from when it was on
    Paint(track, 1, 6);
    RenderTuneTrack(track);
    EXPECT_EQ(LevelsAtCells(TrackAt(track).TrackRender, 6), (SampleList{0, 2, 0, 0, 2, 0}));
}

TEST_F(RenderTuneTrackTest, MemoryThatRunsOutIsToldToTheCallerAndTheTrackStaysToBeRendered)
{
    const std::int32_t track = AddNumberedTrack(3);
    Paint(track, 1, 6);
    services.stretch.lacksMemory = true;
    EXPECT_THROW(RenderTuneTrack(track), std::bad_alloc);
    EXPECT_FALSE(TrackAt(track).TrackRenderValid);
    EXPECT_THROW(MixSong(), std::bad_alloc);
    EXPECT_FALSE(Shared().Song.SongMixValid);
    EXPECT_EQ(services.screen.processPics, 0);
    services.stretch.lacksMemory = false;
    RenderTuneTrack(track);
    EXPECT_GT(TrackAt(track).TrackRender.Length, 0);
    MixSong();
    EXPECT_GT(Shared().Song.SongMix.Length, 0);
}

TEST_F(RenderTuneTrackTest, WithoutPaintTheTrackIsEmptyAndValid)
{
    const std::int32_t track = AddNumberedTrack(3);
    TrackAt(track).FirstPainted = 9;
    TrackAt(track).TrackRender = LevelWave(3, 3);
    RenderTuneTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender, EmptyWave());
    EXPECT_EQ(TrackAt(track).FirstPainted, 0);
    EXPECT_TRUE(TrackAt(track).TrackRenderValid);
    EXPECT_TRUE(services.stretch.Calls().empty());
}

TEST_F(RenderTuneTrackTest, AllStepsOffGiveLengthZero)
{
    const std::int32_t track = AddTuneTrack(MakeTune(4));
    Paint(track, 7, 9);
    RenderTuneTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender.Length, 0);
    EXPECT_EQ(TrackAt(track).FirstPainted, 7);
}

TEST_F(RenderTuneTrackTest, AValidTrackIsLeftAlone)
{
    const std::int32_t track = AddNumberedTrack(3);
    Paint(track, 1, 3);
    SetTrackRenderValid(TrackAt(track), true);
    RenderTuneTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender.Length, 0);
    EXPECT_EQ(services.screen.processPicsShown, 0);
}

TEST_F(RenderTuneTrackTest, TracksThatAreNotThereDoNothing)
{
    AddNumberedTrack(3);
    Shared().Song.TrackCount = 7;
    for (const std::int32_t track : {-1, 0, 2, 7, 8}) {
        RenderTuneTrack(track);
        RenderAudioTrack(track);
    }
    EXPECT_FALSE(TrackAt(1).TrackRenderValid);
    EXPECT_FALSE(TrackAt(0).TrackRenderValid);
}

TEST_F(RenderTuneTrackTest, TheSumIsClippedAt85Percent)
{
    Tune tune = MakeTune(1);
    SetStep(tune, 1, AddBeat(LevelWave(kCellFrames + 1, 20000)));
    const std::int32_t track = AddTuneTrack(tune);
    Paint(track, 1, 2);
    RenderTuneTrack(track);
    const WaveData& wave = TrackAt(track).TrackRender;
    EXPECT_EQ(wave.WavL[kCellFrames], 20000);
    EXPECT_EQ(wave.WavL[kCellFrames + 1], 27852);
    EXPECT_EQ(wave.WavL[kCellFrames + 2], 20000);
}

TEST_F(RenderTuneTrackTest, DoublingTheTempoHalvesTheDistanceAndKeepsTheSteps)
{
    const std::int32_t track = AddNumberedTrack(4);
    Paint(track, 2, 5);
    RenderTuneTrack(track);
    const WaveData slow = TrackAt(track).TrackRender;
    const std::size_t calls = services.stretch.Calls().size();
    Shared().Song.Tempo = 2 * kSlowTempo;
    SongChanges::TempoChanged(Shared().Song);
    RenderTuneTrack(track);
    const WaveData& fast = TrackAt(track).TrackRender;
    EXPECT_EQ(services.stretch.Calls().size(), calls);
    for (std::int32_t k = 0; k < 4; ++k) {
        const std::int32_t begin = CellOffset(k, 0, 2 * kSlowTempo, 44100); // 5512.5 per cell, ties to even
        EXPECT_EQ(fast.WavL[begin + 1], k + 1);
        EXPECT_EQ(fast.WavL[begin + kBeatFrames], slow.WavL[k * kCellFrames + kBeatFrames]);
        EXPECT_EQ(fast.WavL[begin], 0);
    }
    EXPECT_EQ(fast.Length, CellOffset(3, 0, 2 * kSlowTempo, 44100) + kBeatFrames);
}

/// Damage that a broken file may leave in a track.
void Spoil(std::int32_t how, Track& track)
{
    SongState& song = Shared().Song;
    switch (how) {
    case 0:
        song.Tempo = 0;
        break;
    case 1:
        song.Tempo = -320;
        break;
    case 2:
        song.Tempo = std::numeric_limits<std::int32_t>::min();
        break;
    case 3:
        song.Tempo = 1; // hours
        break;
    case 4:
        track.Painted.resize(1280);
        break;
    case 5:
        track.Painted.clear();
        break;
    case 6:
        track.TrackTune.StepCount = 1000;
        track.TrackAudio.Length = 1000000;
        break;
    case 7:
        track.TrackTune.Steps.clear();
        track.TrackAudio.Rate = 0;
        break;
    case 8:
        track.TrackTune.StepCount = -5;
        track.TrackTune.Steps.resize(1);
        track.TrackAudio.WavL = Channel();
        break;
    default:
        track.TrackTune.StepCount = 0;
        track.TrackTune.Steps.resize(1);
        track.TrackAudio.WavR = Channel();
    }
}

TEST_F(SongTest, DamagedTracksFailQuietly)
{
    for (std::int32_t how = 0; how <= 9; ++how) {
        Shared().Song = SongState();
        const std::int32_t tune = AddNumberedTrack(4);
        Paint(tune, 1, 1280);
        Spoil(how, TrackAt(tune));
        RenderTuneTrack(tune);
        EXPECT_EQ(TrackAt(tune).TrackRender, EmptyWave()) << how;
        EXPECT_TRUE(TrackAt(tune).TrackRenderValid) << how;

        Shared().Song = SongState();
        const std::int32_t audio = AddAudioTrack(RampWave(3 * kCellFrames));
        Paint(audio, 1, 1);
        Paint(audio, 1000, 1279);
        Spoil(how, TrackAt(audio));
        RenderAudioTrack(audio);
        EXPECT_EQ(TrackAt(audio).TrackRender, EmptyWave()) << how;
        EXPECT_TRUE(TrackAt(audio).TrackRenderValid) << how;

        SetTrackRenderValid(Shared().Song.Tracks[1], false);
        const std::int32_t both = AddNumberedTrack(4);
        Paint(both, 1, 1280);
        Spoil(how, TrackAt(both));
        MixSong();
        EXPECT_EQ(Shared().Song.SongMix, EmptyWave()) << how;
        EXPECT_TRUE(Shared().Song.SongMixValid) << how;
    }
    ExpectSignsRestored();
}

TEST_F(SongTest, AnAbsurdlyFastTempoPlacesEverythingAtTheStart)
{
    Shared().Song.Tempo = std::numeric_limits<std::int32_t>::max();
    const std::int32_t tune = AddNumberedTrack(4);
    Paint(tune, 1, 4);
    RenderTuneTrack(tune);
    EXPECT_EQ(TrackAt(tune).TrackRender, LevelWave(kBeatFrames, 10));
    const std::int32_t audio = AddAudioTrack(RampWave(100));
    Paint(audio, 1, 4);
    RenderAudioTrack(audio);
    EXPECT_EQ(TrackAt(audio).TrackRender.Length, 0) << "the run is cut to no frames";
}

} // namespace
} // namespace sprout
