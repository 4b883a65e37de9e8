// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongTime.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "base/Errors.h"

namespace sprout {
namespace {

TEST(SongTime, TurnsTempoIntoPercentAndBack)
{
    EXPECT_EQ(TempoOfPercent(50), 160);
    EXPECT_EQ(TempoOfPercent(100), 320);
    EXPECT_EQ(TempoOfPercent(200), 640);
    EXPECT_EQ(TempoPercent(160), 50);
    EXPECT_EQ(TempoPercent(640), 200);
    EXPECT_EQ(TempoPercent(1), 50);
    EXPECT_EQ(TempoPercent(-5), 50);
    EXPECT_EQ(TempoPercent(100000), 200);
    EXPECT_EQ(TempoPercent(324), 101);   // 101.25
    EXPECT_EQ(TempoPercent(325), 102);   // 101.5625
    EXPECT_EQ(TempoPercent(328), 102);   // 102.5 rounds to even
    EXPECT_EQ(TempoPercent(344), 108);   // 107.5
    EXPECT_EQ(TempoOfPercent(101), 323); // 323.2
    EXPECT_EQ(TempoOfPercent(102), 326); // 326.4
    EXPECT_EQ(TempoOfPercent(104), 333); // 332.8
    for (std::int32_t percent = 50; percent <= 200; ++percent)
        EXPECT_EQ(TempoPercent(TempoOfPercent(percent)), percent);
}

TEST(SongTime, MeasuresTheWholeGrid)
{
    EXPECT_EQ(SongSeconds(320), 240);
    EXPECT_EQ(SongSeconds(160), 480);
    EXPECT_EQ(SongSeconds(640), 120);
    EXPECT_EQ(SongSeconds(333), 231); // 230.63
    EXPECT_EQ(SongSeconds(30720), 2); // 2.5 rounds to even
    EXPECT_THROW(static_cast<void>(SongSeconds(0)), RunTimeError);
}

TEST(SongTime, PlacesCellsInFrames)
{
    EXPECT_EQ(CellOffset(5, 5, 320, 44100), 0);
    EXPECT_EQ(CellOffset(2, 1, 320, 44100), 8269); // 8268.75
    EXPECT_EQ(CellOffset(1, 3, 320, 44100), -16538);
    EXPECT_THROW(static_cast<void>(CellOffset(2, 1, 0, 44100)), RunTimeError);
    EXPECT_THROW(static_cast<void>(CellOffset(1, 1, 0, 44100)), RunTimeError);
}

TEST(SongTime, CountsTheCellsOfAnAudioWaveAtTheReferenceTempo)
{
    WaveData audio;
    audio.Length = 44100 * 3;
    EXPECT_EQ(AudioCycleCells(audio), 16);
    audio.Rate = 16; // three frames per cell
    for (const auto& [length, cells] :
         {std::pair(4, 1), std::pair(5, 2), std::pair(6, 2), std::pair(7, 2), std::pair(8, 3), std::pair(1, 1)}) {
        audio.Length = length;
        EXPECT_EQ(AudioCycleCells(audio), cells) << length;
    }
    audio.Rate = 32; // six: a half rounds to even
    for (const auto& [length, cells] : {std::pair(3, 1), std::pair(9, 2), std::pair(15, 2), std::pair(21, 4)}) {
        audio.Length = length;
        EXPECT_EQ(AudioCycleCells(audio), cells) << length;
    }
    audio.Rate = 44100;
    audio.Length = 0;
    EXPECT_EQ(AudioCycleCells(audio), 1);
    audio.Rate = 0;
    EXPECT_EQ(AudioCycleCells(audio), 1);
    audio.Length = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(AudioCycleCells(audio), 1);
    audio.Rate = 1;
    EXPECT_EQ(AudioCycleCells(audio), std::numeric_limits<std::int32_t>::max());
}

TEST(SongTime, FindsTheFirstCellThatHoldsOne)
{
    Track track;
    track.Painted = {1, 0, 2, 1, 1}; // element 0 is not a cell, 2 counts as 0
    EXPECT_EQ(FindFirstPainted(track, 4), 3);
    EXPECT_EQ(FindFirstPainted(track, 2), 0);
    track.Painted = {1, 2};
    EXPECT_EQ(FindFirstPainted(track, 1280), 0);
}

} // namespace
} // namespace sprout
