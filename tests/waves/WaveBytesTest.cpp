// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WaveBytes.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/Errors.h"
#include "sound/PlayTest.h"

namespace sprout {
namespace {

TEST(WaveHead, HoldsTheFormatInTheCanonicalPlaces)
{
    WaveData wave;
    wave.Bits = 16;
    wave.Channels = 2;
    wave.Rate = 22050;
    auto head = WaveHead(wave);
    SetWaveSizes(head, 0x01020304);
    const std::vector<std::byte> expected =
        Bytes({'R', 'I',  'F',  'F', 0x28, 3,    2,    1, 'W', 'A', 'V', 'E', 'f', 'm', 't', ' ', 16,  0, 0, 0, 1, 0, 2,
               0,   0x22, 0x56, 0,   0,    0x88, 0x58, 1, 0,   4,   0,   16,  0,   'd', 'a', 't', 'a', 4, 3, 2, 1});
    EXPECT_EQ(std::vector(head.begin(), head.end()), expected);
}

TEST(WaveHead, LeavesTheSizesOpen)
{
    const auto head = WaveHead(WaveData());
    for (const std::size_t place : {4U, 5U, 6U, 7U, 40U, 41U, 42U, 43U})
        EXPECT_EQ(head[place], std::byte{0});
}

TEST(PackFrames, InterleavesWordsWithTheLowByteFirst)
{
    std::vector<std::byte> bytes(8);
    PackFrames(CountingWave(0x103), 0x102, bytes);
    EXPECT_EQ(bytes, Bytes({2, 1, 0xFE, 0xFE, 3, 1, 0xFD, 0xFE}));
}

TEST(PackFrames, Adds128ToSamplesOf8Bits)
{
    std::vector<std::byte> bytes(3);
    PackFrames(MonoWave(8, 11025, {-128, 0, 127}), 1, bytes);
    EXPECT_EQ(bytes, Bytes({0, 128, 255}));
}

TEST(PackFrames, RefusesASampleBeyond8Bits)
{
    std::vector<std::byte> bytes(1);
    EXPECT_THROW(PackFrames(MonoWave(8, 11025, {128}), 1, bytes), RunTimeError);
    EXPECT_THROW(PackFrames(MonoWave(8, 11025, {-129}), 1, bytes), RunTimeError);
}

TEST(CheckFrames, RefusesAWaveWithFewerFramesThanItTells)
{
    EXPECT_NO_THROW(CheckFrames(CountingWave(3)));
    WaveData headOnly = CountingWave(2);
    headOnly.Length = 3;
    EXPECT_THROW(CheckFrames(headOnly), RunTimeError);
    WaveData halfOnly = CountingWave(3);
    halfOnly.WavR = Channel();
    EXPECT_THROW(CheckFrames(halfOnly), RunTimeError);
    WaveData negative = CountingWave(3);
    negative.Length = -1;
    EXPECT_THROW(CheckFrames(negative), RunTimeError);
}

TEST(PackFrames, PacksAMonoWaveOf16BitsWordByWord)
{
    std::vector<std::byte> bytes(8);
    PackFrames(MonoWave(16, 44100, {0x1234, -2, 32767, -32768}), 1, bytes);
    EXPECT_EQ(bytes, Bytes({0x34, 0x12, 0xFE, 0xFF, 0xFF, 0x7F, 0, 0x80}));
}

TEST(PackFrames, InterleavesBytes)
{
    WaveData wave = MonoWave(8, 11025, {1, 2});
    wave.Channels = 2;
    wave.WavR = Channel::FromSamples(std::vector<std::int16_t>{-1, -2});
    std::vector<std::byte> bytes(4);
    PackFrames(wave, 1, bytes);
    EXPECT_EQ(bytes, Bytes({129, 127, 130, 126}));
}

} // namespace
} // namespace sprout
