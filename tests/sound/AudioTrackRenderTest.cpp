// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TrackRender.h"

#include <gtest/gtest.h>

#include <vector>

#include "sound/SongTest.h"
#include "support/Flags.h"

namespace sprout {
namespace {

using RenderAudioTrackTest = SongTest;

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
    SetTrackRenderValid(TrackAt(track), false);
    Paint(track, 1277, 1277, 2);
    RenderAudioTrack(track);
    EXPECT_EQ(TrackAt(track).TrackRender.Length, 0);
    EXPECT_EQ(TrackAt(track).FirstPainted, 1278);
    SetTrackRenderValid(TrackAt(track), false);
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
    SetTrackRenderValid(TrackAt(track), false);
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

} // namespace
} // namespace sprout
