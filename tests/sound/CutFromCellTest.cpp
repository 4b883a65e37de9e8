// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TrackRender.h"

#include <gtest/gtest.h>

#include <limits>

#include "sound/SongTest.h"

namespace sprout {
namespace {

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
