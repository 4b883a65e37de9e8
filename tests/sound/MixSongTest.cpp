// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TrackRender.h"

#include <gtest/gtest.h>

#include <vector>

#include "sound/SongTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

using MixSongTest = SongTest;

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
    SetSongMixValid(Shared().Song, false);
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
    SetSongMixValid(Shared().Song, true);
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

} // namespace
} // namespace sprout
