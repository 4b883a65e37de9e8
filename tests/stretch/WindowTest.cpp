// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Window.h"

#include <gmock/gmock.h>

#include <vector>

namespace sprout::stretch {

TEST(HannWindow, RisesFromZeroToOneInTheMiddle)
{
    const std::span<const float> window = HannWindow(8);
    EXPECT_FLOAT_EQ(window[0], 0);
    EXPECT_FLOAT_EQ(window[4], 1);
    EXPECT_FLOAT_EQ(window[1], window[7]);
}

namespace {

/// The samples of one lane.
std::vector<float> LaneOf(const std::vector<Complex4>& blocks, int lane)
{
    std::vector<float> samples;
    for (const Complex4& pair : blocks)
        samples.insert(samples.end(), {pair.re[lane], pair.im[lane]});
    return samples;
}

} // namespace

TEST(WindowBlocks, TakesSilenceForWhatLiesOutsideTheSound)
{
    const std::vector<float> sound{1, 2, 3};
    const std::vector<float> window{1, 1, 1, 2};
    std::vector<Complex4> blocks(3, Complex4{Float4{} + 9, Float4{} + 9});
    WindowBlocks(sound, {-1, 1, 5, -9}, window, blocks);
    EXPECT_THAT(LaneOf(blocks, 0), testing::ElementsAre(0, 1, 2, 6, 0, 0));
    EXPECT_THAT(LaneOf(blocks, 1), testing::ElementsAre(2, 3, 0, 0, 0, 0));
    EXPECT_THAT(LaneOf(blocks, 2), testing::Each(0));
    EXPECT_THAT(LaneOf(blocks, 3), testing::Each(0));
}

TEST(WindowBlocks, FillsEachLaneFromItsPlaceInTheSound)
{
    const std::vector<float> sound{1, 2, 3, 4, 5, 6, 7};
    const std::vector<float> window{1, 10, 100, 1000};
    std::vector<Complex4> blocks(2);
    WindowBlocks(sound, {0, 1, 2, 3}, window, blocks);
    EXPECT_THAT(LaneOf(blocks, 0), testing::ElementsAre(1, 20, 300, 4000));
    EXPECT_THAT(LaneOf(blocks, 3), testing::ElementsAre(4, 50, 600, 7000));
}

TEST(SplitBlocks, GivesEachLaneARow)
{
    const std::vector<float> sound{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    std::vector<Complex4> blocks(4);
    WindowBlocks(sound, {0, 1, 2, 3}, std::vector<float>(8, 1.0F), blocks);
    std::vector<float> rows(16);
    const std::span<float> all = rows;
    SplitBlocks(blocks, {all.first(4), all.subspan(4, 4), all.subspan(8, 4), all.last(4)});
    EXPECT_THAT(rows, testing::ElementsAre(1, 2, 3, 4, 2, 3, 4, 5, 3, 4, 5, 6, 4, 5, 6, 7));
}

} // namespace sprout::stretch
