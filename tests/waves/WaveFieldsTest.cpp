// SPDX-License-Identifier: GPL-3.0-or-later
#include "waves/WaveFields.h"

#include <gtest/gtest.h>

#include <array>
#include <span>
#include <string>

namespace sprout {
namespace {

std::uint64_t DataPlace(const std::string& bytes)
{
    MemorySource source(std::as_bytes(std::span(bytes)));
    return FindWaveData(source);
}

TEST(ReadWaveFields, ReadsTheTagWholeAndOfChannelsAndBitsTheLowByte)
{
    std::array<std::uint8_t, kSmallestWave> head{};
    head[20] = 3, head[21] = 2;                             // the tag
    head[22] = 4, head[23] = 9;                             // channels
    head[24] = 5, head[25] = 6, head[26] = 7, head[27] = 8; // rate
    head[34] = 10, head[35] = 9;                            // bits
    MemorySource source(std::as_bytes(std::span(head)));
    const WaveFields fields = ReadWaveFields(source);
    EXPECT_EQ(fields.FormatTag, 0x0203);
    EXPECT_EQ(fields.Channels, 4);
    EXPECT_EQ(fields.Rate, 0x08070605);
    EXPECT_EQ(fields.Bits, 10);
}

TEST(FindWaveData, TakesTheFirstNameBehindTheHeadInAnyLetterCase)
{
    const std::string head(35, 'x');
    EXPECT_EQ(DataPlace(head + "data1"), 35U);
    EXPECT_EQ(DataPlace(head + "..DaTa1data2"), 37U);
    EXPECT_EQ(DataPlace(std::string(34, 'x') + "data........"), 0U) << "it begins within the head";
    EXPECT_EQ(DataPlace(head + "dat" + "adata1"), 35U);
    EXPECT_EQ(DataPlace(head + "[ata{ataDATA1"), 43U);
    EXPECT_EQ(DataPlace(head + "data"), 0U) << "no byte follows";
    EXPECT_EQ(DataPlace(head), 0U);
}

} // namespace
} // namespace sprout
