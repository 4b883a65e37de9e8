// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Slices.h"

#include <gmock/gmock.h>

namespace sprout::stretch {
namespace {

std::vector<Slice> Cut(const std::vector<Index>& onsets, Index inCount, Index outCount)
{
    return CutSlices(onsets, inCount, outCount, SizesFor(44100));
}

} // namespace

TEST(CutSlices, MakesOneSliceOfASoundWithoutOnsets)
{
    EXPECT_THAT(Cut({}, 10000, 15000), testing::ElementsAre(Slice{0, 10000, 0, 15000, 662}));
}

TEST(CutSlices, StartsAMillisecondAheadOfAnOnsetAndLandsItAtItsStretchedPlace)
{
    const std::vector<Slice> slices = Cut({4410}, 20000, 30000);
    ASSERT_EQ(slices.size(), 2U);
    EXPECT_EQ(slices[1].inFirst, 4410 - 44);
    EXPECT_EQ(slices[1].outFirst, 6615 - 44);
}

TEST(CutSlices, CoversBothLengthsWithoutAGap)
{
    Index in = 0;
    Index out = 0;
    for (const Slice& slice : Cut({0, 3000, 7777, 12345}, 20000, 7001)) {
        EXPECT_EQ(slice.inFirst, in);
        EXPECT_EQ(slice.outFirst, out);
        EXPECT_LT(slice.verbatim, slice.outCount);
        in += slice.inCount;
        out += slice.outCount;
    }
    EXPECT_EQ(in, 20000);
    EXPECT_EQ(out, 7001);
}

TEST(CutSlices, GivesNoSliceToAnOnsetWithoutRoom)
{
    EXPECT_EQ(Cut({400}, 20000, 30000).size(), 1U);
    EXPECT_EQ(Cut({401}, 20000, 30000).size(), 2U);
    EXPECT_EQ(Cut({5000, 6299}, 20000, 30000).size(), 2U);
    EXPECT_EQ(Cut({5000, 6300}, 20000, 30000).size(), 3U);
    EXPECT_EQ(Cut({18745}, 20000, 30000).size(), 1U);
    EXPECT_EQ(Cut({18744}, 20000, 30000).size(), 2U);
}

TEST(CutSlices, KeepsTheQuietAheadOfAnEarlyOnsetWithTheAttack)
{
    EXPECT_EQ(Cut({320}, 20000, 30000).front().verbatim, 662 + 320);
    EXPECT_EQ(Cut({900}, 20000, 30000).front().verbatim, 256);
}

TEST(CutSlices, KeepsThreeTenthsOfTheShorterSideAtMost)
{
    EXPECT_EQ(Cut({}, 1000, 2000).front().verbatim, 300);
    EXPECT_EQ(Cut({}, 2000, 500).front().verbatim, 150);
}

} // namespace sprout::stretch
