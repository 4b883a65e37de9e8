// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TrackRender.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <new>
#include <vector>

#include "core/SongModel.h"
#include "sound/RenderThreads.h"
#include "sound/SongMaker.h"
#include "sound/StepCache.h"
#include "sound/Waves.h"
#include "support/FakeServices.h"
#include "waves/WavOperations.h"

namespace sprout {
namespace {

constexpr std::int32_t kBeatFrames = 600;

/// A song with a tempo at which a cell is a whole number of frames.
class SongTest : public testing::Test {
protected:
    SongTest()
    {
        TheStepCache().Clear();
        Shared().Song.Tempo = kSlowTempo;
    }
    ~SongTest() override
    {
        TheStepCache().SetMostBytes(StepCache::kMostBytes);
        TheStepCache().Clear();
    }

    /// A track of `steps` steps, of which step k sounds the level k.
    static std::int32_t AddNumberedTrack(std::int32_t steps)
    {
        Tune tune = MakeTune(steps);
        for (std::int32_t k = 1; k <= steps; ++k)
            SetStep(tune, k, AddBeat(LevelWave(kBeatFrames, static_cast<std::int16_t>(k))));
        return AddTuneTrack(tune);
    }

    /// The level at the beginning of each of `cells` cells.
    static SampleList LevelsAtCells(const WaveData& wave, std::int32_t cells)
    {
        SampleList levels;
        for (std::int32_t cell = 0; cell < cells; ++cell)
            levels.push_back(cell * kCellFrames < wave.Length ? wave.WavL[cell * kCellFrames + 1] : std::int16_t{0});
        return levels;
    }

    void ExpectSignsRestored() const
    {
        EXPECT_EQ(services.screen.hourglasses, 0);
        EXPECT_EQ(services.screen.processPics, 0);
        EXPECT_TRUE(services.messages.shown.empty());
    }

    FakeServices services;
};

using RenderTuneTrackTest = SongTest;
using RenderAudioTrackTest = SongTest;
using MixSongTest = SongTest;

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
    TrackAt(track).TrackRenderValid = true;
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
    InvalidateForTempo();
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

        Shared().Song.Tracks[1].TrackRenderValid = false;
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

TEST_F(RenderAudioTrackTest, TheWaveRepeatsAlongARunAndEachRunBeginsItAnew)
{
    const WaveData audio = RampWave(2 * kCellFrames);
    const std::int32_t track = AddAudioTrack(audio);
    Paint(track, 3, 6);
    Paint(track, 7, 8, 2);
    Paint(track, 9, 10);
    RenderAudioTrack(track);
    const WaveData& wave = TrackAt(track).TrackRender;
    EXPECT_EQ(TrackAt(track).FirstPainted, 3);
    EXPECT_TRUE(TrackAt(track).TrackRenderValid);
    ASSERT_EQ(wave.Length, 8 * kCellFrames);
    for (const std::int32_t begin : {0, 2 * kCellFrames, 6 * kCellFrames})
        EXPECT_EQ(CutWaveSlice(wave, begin + 1, begin + 2 * kCellFrames), audio) << begin;
    EXPECT_EQ(wave.WavL[5 * kCellFrames], 0);
    ExpectSignsRestored();
}

TEST_F(RenderAudioTrackTest, ARunThatEndsBeforeTheWaveCutsIt)
{
    const WaveData audio = RampWave(3 * kCellFrames - 5);
    const std::int32_t track = AddAudioTrack(audio);
    Paint(track, 1, 4);
    Paint(track, 6, 6);
    RenderAudioTrack(track);
    const WaveData& wave = TrackAt(track).TrackRender;
    ASSERT_EQ(wave.Length, 6 * kCellFrames);
    EXPECT_EQ(CutWaveSlice(wave, 1, audio.Length), audio);
    EXPECT_EQ(wave.WavL[3 * kCellFrames], 0) << "the wave is shorter than its cells";
    const WaveData cell = CutWaveSlice(audio, 1, kCellFrames);
    EXPECT_EQ(CutWaveSlice(wave, 3 * kCellFrames + 1, 4 * kCellFrames), cell);
    EXPECT_EQ(wave.WavL[4 * kCellFrames + 1], 0);
    EXPECT_EQ(CutWaveSlice(wave, 5 * kCellFrames + 1, 6 * kCellFrames), cell) << "runs of one length share the cut";
}

TEST_F(RenderAudioTrackTest, EveryRunSoundsACutOfItsOwnLength)
{
    const WaveData audio = RampWave(4 * kCellFrames);
    const std::int32_t track = AddAudioTrack(audio);
    Paint(track, 1, 2);
    Paint(track, 4, 6);
    Paint(track, 8, 8);
    Paint(track, 10, 12);
    Paint(track, 14, 15);
    RenderAudioTrack(track);
    const WaveData& wave = TrackAt(track).TrackRender;
    ASSERT_EQ(wave.Length, 15 * kCellFrames);
    for (const auto& [cell, cells] :
         {std::pair(1, 2), std::pair(4, 3), std::pair(8, 1), std::pair(10, 3), std::pair(14, 2)}) {
        const std::int32_t begin = (cell - 1) * kCellFrames;
        EXPECT_EQ(CutWaveSlice(wave, begin + 1, begin + cells * kCellFrames),
                  CutWaveSlice(audio, 1, cells * kCellFrames))
            << cell;
        if (cell < 14) {
            EXPECT_EQ(wave.WavL[begin + cells * kCellFrames + 1], 0) << cell;
        }
    }
}

TEST_F(RenderAudioTrackTest, ARunThatReachesTheEndOfTheSongUnfinishedIsSilent)
{
    const std::int32_t track = AddAudioTrack(LevelWave(4 * kCellFrames, 5));
    Paint(track, 1277, 1280);
    RenderAudioTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender, LevelWave(4 * kCellFrames, 5)) << "the last cell reaches the wave's length";
    TrackAt(track).TrackRenderValid = false;
    Paint(track, 1277, 1277, 2);
    RenderAudioTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender.Length, 0);
    EXPECT_EQ(TrackAt(track).FirstPainted, 1278);
    TrackAt(track).TrackRenderValid = false;
    Paint(track, 1277, 1279);
    Paint(track, 1280, 1280, 0);
    RenderAudioTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender, LevelWave(3 * kCellFrames, 5)) << "a gap cuts it";
}

TEST_F(RenderAudioTrackTest, CellsAndWaveAreComparedInSinglePrecision)
{
    // 0.2 s each; as floats they are equal, but compared with a double the float is larger.
    Shared().Song.Tempo = 300;
    const std::int32_t track = AddAudioTrack(LevelWave(8820, 5));
    Paint(track, 1280, 1280);
    RenderAudioTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender, LevelWave(8820, 5));
}

TEST_F(RenderAudioTrackTest, CutsCountInFramesOfTheProgramsRateWhateverTheWaves)
{
    WaveData low = MonoWave(SampleList(2 * kCellFrames, 5), 11025, 16); // eight cells long
    const std::int32_t track = AddAudioTrack(low);
    Paint(track, 1, 1);
    RenderAudioTrack(track);
    // The frames of one cell are cut from the wave before it is converted to four times as many.
    EXPECT_EQ(TrackAt(track).TrackRender, LevelWave(4 * kCellFrames, 5));
    TrackAt(track).TrackRenderValid = false;
    Paint(track, 1, 3);
    RenderAudioTrack(track);
    const WaveData& wave = TrackAt(track).TrackRender;
    EXPECT_EQ(wave.Length, 12 * kCellFrames) << "extended with silence";
    EXPECT_EQ(wave.WavR[8 * kCellFrames], 5);
    EXPECT_EQ(wave.WavR[8 * kCellFrames + 8], 0);
}

TEST_F(RenderAudioTrackTest, AnEmptyWaveEndsBeforeThePaintIsLookedAt)
{
    const std::int32_t track = AddAudioTrack(EmptyWave());
    TrackAt(track).FirstPainted = 12;
    Paint(track, 5, 6);
    RenderAudioTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender, EmptyWave());
    EXPECT_TRUE(TrackAt(track).TrackRenderValid);
    EXPECT_EQ(TrackAt(track).FirstPainted, 12);
}

TEST_F(RenderAudioTrackTest, WithoutPaintTheTrackIsEmptyAndValid)
{
    const std::int32_t track = AddAudioTrack(RampWave(100));
    RenderAudioTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender, EmptyWave());
    EXPECT_TRUE(TrackAt(track).TrackRenderValid);
    EXPECT_EQ(TrackAt(track).FirstPainted, 0);
}

TEST_F(RenderAudioTrackTest, IsClippedAt85Percent)
{
    const std::int32_t track = AddAudioTrack(LevelWave(100, -32768));
    Paint(track, 1, 1);
    RenderAudioTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender, LevelWave(100, -27853));
}

TEST_F(MixSongTest, PlacesTheStepsOfAllTracksFromTheFirstPaintOn)
{
    const std::int32_t first = AddNumberedTrack(3);
    const std::int32_t second = AddNumberedTrack(2);
    Paint(first, 12, 15);
    Paint(second, 10, 13);
    MixSong();
    const SongState& song = Shared().Song;
    EXPECT_EQ(song.SongFirstPos, 10);
    EXPECT_TRUE(song.SongMixValid);
    EXPECT_EQ(LevelsAtCells(song.SongMix, 6), (SampleList{1, 2, 1 + 1, 2 + 2, 3, 1}));
    EXPECT_EQ(song.SongMix.Length, 5 * kCellFrames + kBeatFrames);
    EXPECT_EQ(TrackAt(first).FirstPainted, 12);
    EXPECT_FALSE(TrackAt(first).TrackRenderValid) << "the renders of music tracks are not used here";
    EXPECT_EQ(services.screen.processPicsShown, 1);
    ExpectSignsRestored();
}

TEST_F(MixSongTest, ClipsAtFullScale)
{
    for (int i = 0; i < 2; ++i) {
        Tune tune = MakeTune(1);
        SetStep(tune, 1, AddBeat(StereoWave(SampleList(600, 20000), SampleList(600, -20000))));
        Paint(AddTuneTrack(tune), 1, 1);
    }
    MixSong();
    EXPECT_EQ(Shared().Song.SongMix, StereoWave(SampleList(600, 32767), SampleList(600, -32768)));
}

TEST_F(MixSongTest, TakesAudioTracksAsTheyWereRendered)
{
    const std::int32_t music = AddNumberedTrack(1);
    const std::int32_t audio = AddAudioTrack(LevelWave(kCellFrames, 30000));
    Paint(music, 4, 4);
    Paint(audio, 5, 5);
    MixSong();
    EXPECT_EQ(LevelsAtCells(Shared().Song.SongMix, 2), (SampleList{1, 27852}));
    EXPECT_TRUE(TrackAt(audio).TrackRenderValid);
    // A valid render is kept.
    TrackAt(audio).TrackRender = LevelWave(10, 7);
    Shared().Song.SongMixValid = false;
    MixSong();
    EXPECT_EQ(Shared().Song.SongMix.Length, kCellFrames + 10);
}

TEST_F(MixSongTest, ATrackWithAllStepsOffStillMovesTheStart)
{
    const std::int32_t silent = AddTuneTrack(MakeTune(4));
    const std::int32_t music = AddNumberedTrack(1);
    Paint(silent, 3, 3);
    Paint(music, 5, 5);
    MixSong();
    EXPECT_EQ(Shared().Song.SongFirstPos, 3);
    EXPECT_EQ(LevelsAtCells(Shared().Song.SongMix, 3), (SampleList{0, 0, 1}));
}

TEST_F(MixSongTest, AnAudioTrackWithoutPaintMovesTheStartToZero)
{
    AddAudioTrack(LevelWave(100, 5));
    Paint(AddNumberedTrack(1), 2, 2);
    MixSong();
    EXPECT_EQ(Shared().Song.SongFirstPos, 0);
    EXPECT_EQ(LevelsAtCells(Shared().Song.SongMix, 3), (SampleList{0, 0, 1}));
}

TEST_F(MixSongTest, AnEmptyAudioTrackCountsWithAnOldFirstCell)
{
    TrackAt(AddAudioTrack(EmptyWave())).FirstPainted = 1;
    Paint(AddNumberedTrack(1), 3, 3);
    MixSong();
    EXPECT_EQ(Shared().Song.SongFirstPos, 1);
    EXPECT_EQ(LevelsAtCells(Shared().Song.SongMix, 3), (SampleList{0, 0, 1}));
}

TEST_F(MixSongTest, WithoutPaintIsEmptyAndValid)
{
    AddNumberedTrack(3);
    AddNumberedTrack(3);
    Shared().Song.SongMix = LevelWave(3, 3);
    MixSong();
    EXPECT_EQ(Shared().Song.SongMix, EmptyWave());
    EXPECT_TRUE(Shared().Song.SongMixValid);
    EXPECT_EQ(Shared().Song.SongFirstPos, -1);
    ExpectSignsRestored();
}

TEST_F(MixSongTest, WithoutTracksIsEmptyAndValid)
{
    MixSong();
    EXPECT_EQ(Shared().Song.SongMix, EmptyWave());
    EXPECT_TRUE(Shared().Song.SongMixValid);
}

TEST_F(MixSongTest, AValidMixIsLeftAlone)
{
    Paint(AddNumberedTrack(1), 1, 1);
    Shared().Song.SongMixValid = true;
    Shared().Song.SongFirstPos = 99;
    MixSong();
    EXPECT_EQ(Shared().Song.SongFirstPos, 99);
    EXPECT_EQ(Shared().Song.SongMix.Length, 0);
}

TEST_F(MixSongTest, ATrackOfAnUnknownKindIsLeftOut)
{
    const std::int32_t strange = AddNumberedTrack(1);
    TrackAt(strange).TrackType = 7;
    Paint(strange, 1, 3);
    Paint(AddNumberedTrack(1), 2, 2);
    MixSong();
    EXPECT_EQ(Shared().Song.SongFirstPos, 2);
    EXPECT_EQ(Shared().Song.SongMix, LevelWave(kBeatFrames, 1));
}

TEST_F(MixSongTest, Element0OfTheTracksIsNeverConsulted)
{
    Paint(AddNumberedTrack(1), 5, 5);
    TrackAt(0) = TrackAt(1);
    Paint(0, 1, 1);
    MixSong();
    EXPECT_EQ(Shared().Song.SongFirstPos, 5);
    EXPECT_EQ(Shared().Song.SongMix, LevelWave(kBeatFrames, 1));
}

TEST_F(MixSongTest, ASongWithFewerTracksThanItTellsFailsQuietly)
{
    Paint(AddNumberedTrack(1), 5, 5);
    Shared().Song.TrackCount = 1000;
    MixSong();
    EXPECT_EQ(Shared().Song.SongMix, EmptyWave());
    EXPECT_TRUE(Shared().Song.SongMixValid);
}

TEST_F(MixSongTest, CopiedStepsKeepTheirFlagAsTrackByTrack)
{
    const std::int32_t beat = AddBeat(LevelWave(kBeatFrames, 5));
    Tune tune = MakeTune(2);
    SetStep(tune, 1, beat);
    SetStep(tune, 2, beat);
    const std::int32_t first = AddTuneTrack(tune);
    const std::int32_t second = AddTuneTrack(tune);
    Paint(first, 1, 2);
    Paint(second, 1, 2);
    MixSong();
    for (const std::int32_t track : {first, second}) {
        EXPECT_TRUE(At(TrackAt(track).TrackTune.Steps, 1).StepWaveValid);
        EXPECT_FALSE(At(TrackAt(track).TrackTune.Steps, 2).StepWaveValid);
    }
    EXPECT_EQ(services.stretch.Calls().size(), 1u);
    EXPECT_EQ(LevelsAtCells(Shared().Song.SongMix, 2), (SampleList{10, 10}));
}

TEST_F(MixSongTest, WithoutASoundingCellNoStepIsRendered)
{
    Tune tune = MakeTune(4);
    SetStep(tune, 4, AddBeat(LevelWave(kBeatFrames, 5)));
    Paint(AddTuneTrack(tune), 2, 4);
    MixSong();
    EXPECT_EQ(Shared().Song.SongMix, EmptyWave());
    EXPECT_TRUE(Shared().Song.SongMixValid);
    EXPECT_EQ(Shared().Song.SongFirstPos, 2);
    EXPECT_TRUE(services.stretch.Calls().empty());
}

TEST_F(MixSongTest, StepsOfTracksWithoutPaintAreNotRendered)
{
    AddNumberedTrack(3);
    Paint(AddNumberedTrack(1), 1, 1);
    MixSong();
    EXPECT_EQ(services.stretch.Calls().size(), 1u);
}

TEST_F(MixSongTest, CacheAndThreadsAreInvisibleInTheSamples)
{
    for (std::int32_t seed = 1; seed <= 4; ++seed) {
        Tune tune = MakeTune(8);
        for (std::int32_t k = 1; k <= 8; ++k) {
            TuneStep& step = SetStep(tune, k, AddBeat(RampWave(5000 + 100 * k, seed)));
            step.PitchShift = k;
            step.Volume = k == 4 ? 70 : 100;
        }
        Paint(AddTuneTrack(tune), seed, 40 * seed);
    }
    Paint(AddAudioTrack(RampWave(70000)), 2, 90);
    const SongState fresh = Shared().Song;
    const auto mix = [&fresh](std::size_t cacheBytes, std::size_t threads) {
        const RenderThreads most(threads);
        TheStepCache().SetMostBytes(cacheBytes);
        Shared().Song = fresh;
        MixSong();
        return Shared().Song.SongMix;
    };
    const WaveData expected = mix(0, 1);
    EXPECT_GT(expected.Length, 159 * kCellFrames);
    for (const std::size_t threads : {1u, 3u, 0u})
        for (const std::size_t cacheBytes : {StepCache::kMostBytes, std::size_t{30000}, std::size_t{0}})
            EXPECT_EQ(mix(cacheBytes, threads), expected) << threads << ' ' << cacheBytes;
}

TEST(CutFromCell, TakesTheWaveFromTheCellsFrameOn)
{
    const WaveData wave = RampWave(4 * kCellFrames);
    const auto cut = CutFromCell(wave, 10, 12, kSlowTempo);
    ASSERT_TRUE(cut);
    // Frames are numbered from 1, so the cut begins one frame before the cell's first frame.
    EXPECT_EQ(cut->Wave, CutWaveSlice(wave, 2 * kCellFrames, 4 * kCellFrames));
    EXPECT_EQ(cut->StartCell, 12);
}

TEST(CutFromCell, CountsInTheRateOfTheWave)
{
    WaveData wave = RampWave(40000);
    wave.Rate = 22050;
    const auto cut = CutFromCell(wave, 1, 2, 320);
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->Wave.Length, 40000 - 4134 + 1); // 4134.375
}

TEST(CutFromCell, AtOrBeforeTheOriginTheWholeWavePlaysFromThere)
{
    const WaveData wave = RampWave(100);
    for (const std::int32_t cell : {-3, 1, 10}) {
        const auto whole = CutFromCell(wave, 10, cell, kSlowTempo);
        ASSERT_TRUE(whole);
        EXPECT_EQ(whole->Wave, wave);
        EXPECT_EQ(whole->StartCell, 10);
    }
}

TEST(CutFromCell, NothingPlaysAtOrBeyondTheEnd)
{
    EXPECT_FALSE(CutFromCell(RampWave(kCellFrames), 1, 2, kSlowTempo));
    EXPECT_TRUE(CutFromCell(RampWave(kCellFrames + 1), 1, 2, kSlowTempo));
    EXPECT_FALSE(CutFromCell(RampWave(kCellFrames), 1, 1280, kSlowTempo));
    EXPECT_FALSE(CutFromCell(EmptyWave(), 1, 2, kSlowTempo));
}

TEST(CutFromCell, NeverReadsBeyondTheWave)
{
    const WaveData wave = RampWave(100);
    const std::int32_t fastest = std::numeric_limits<std::int32_t>::max();
    ASSERT_TRUE(CutFromCell(wave, 1, 2, fastest));
    EXPECT_EQ(CutFromCell(wave, 1, 2, fastest)->Wave, wave);
    for (const std::int32_t tempo : {0, -1, -320, 1})
        EXPECT_FALSE(CutFromCell(wave, 1, 1280, tempo));
    WaveData shorter = wave;
    shorter.Length = 50000;
    EXPECT_FALSE(CutFromCell(shorter, 1, 2, 320));
    WaveData rateless = wave;
    rateless.Rate = 0;
    EXPECT_EQ(CutFromCell(rateless, 1, 2, 320)->Wave, rateless);
    EXPECT_FALSE(CutFromCell(rateless, 1, 2, 0));
}

TEST_F(MixSongTest, AStepBeyondTheTunesCountLeavesTheMixEmpty)
{
    const std::int32_t track = AddNumberedTrack(1);
    TrackAt(track).TrackTune.StepCount = 0; // its step 1 stays in the array
    Paint(track, 4, 4);
    MixSong();
    EXPECT_EQ(Shared().Song.SongMix, EmptyWave());
    EXPECT_TRUE(Shared().Song.SongMixValid);
    EXPECT_EQ(Shared().Song.SongFirstPos, 4);
    ExpectSignsRestored();
}

TEST(CutFromCell, RefusesAWaveOfWhichOneChannelIsTooShort)
{
    const WaveData whole = LevelWave(2 * kCellFrames, 1);
    EXPECT_TRUE(CutFromCell(whole, 1, 2, kSlowTempo));
    WaveData left = whole;
    left.WavL = Channel(10);
    EXPECT_FALSE(CutFromCell(left, 1, 2, kSlowTempo));
    WaveData right = whole;
    right.WavR = Channel(10);
    EXPECT_FALSE(CutFromCell(right, 1, 2, kSlowTempo));
}

} // namespace
} // namespace sprout
