// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WavOperations.h"

#include <gtest/gtest.h>

#include "waves/WavFile.h"

namespace sprout {
namespace {

TEST(CutWaveSlice, TakesBothEndsIn)
{
    const WaveData cut = CutWaveSlice(Wave(16, {1, 2, 3, 4}, {5, 6, 7, 8}), 2, 3);
    EXPECT_EQ(cut, Wave(16, {2, 3}, {6, 7}));
    EXPECT_EQ(CutWaveSlice(Wave(8, {1, 2, 3}), 1, 3), Wave(8, {1, 2, 3}));
}

TEST(CutWaveSlice, IsEmptyWhereTheLastFrameLiesAhead)
{
    for (const std::int32_t last : {2, 1, -5}) {
        const WaveData cut = CutWaveSlice(Wave(8, {1, 2, 3}, {1, 2, 3}), 3, last);
        EXPECT_EQ(cut.Length, 0);
        EXPECT_EQ(cut.Bits, 8);
        EXPECT_EQ(cut.WavL.UpperBound(), 0);
        EXPECT_EQ(cut.WavR.UpperBound(), 0);
    }
}

TEST(CutWaveSlice, ThrowsForFramesOutside)
{
    const WaveData wave = Wave(16, {1, 2, 3});
    EXPECT_THROW(static_cast<void>(CutWaveSlice(wave, 0, 2)), RunTimeError);
    EXPECT_THROW(static_cast<void>(CutWaveSlice(wave, 2, 4)), RunTimeError);
    EXPECT_THROW(static_cast<void>(CutWaveSlice(wave, -2147483647, 2147483647)), RunTimeError);
}

} // namespace
} // namespace sprout
