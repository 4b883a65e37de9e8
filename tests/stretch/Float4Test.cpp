// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Float4.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace sprout::stretch {
namespace {

void ExpectLanes(Float4 four, const std::array<float, kLanes>& expected)
{
    for (int lane = 0; lane < kLanes; ++lane)
        EXPECT_EQ(four[lane], expected[static_cast<std::size_t>(lane)]) << "lane " << lane;
}

} // namespace

TEST(Float4, IsLoadedFromAndStoredToAnyAddress)
{
    const std::array<float, 6> numbers{1, 2, 3, 4, 5, 6};
    std::array<float, 6> copy{};
    StoreFour(LoadFour(numbers.data() + 1), copy.data() + 1);
    EXPECT_EQ(copy, (std::array<float, 6>{0, 2, 3, 4, 5, 0}));
}

TEST(Float4, ComputesInEachLaneAsOneFloatDoes)
{
    const Float4 a{1, 0.1F, 1e30F, -3};
    const Float4 b{3, 0.7F, 1e30F, 7};
    ExpectLanes(a / b, {1.0F / 3, 0.1F / 0.7F, 1, -3.0F / 7});
    ExpectLanes(a * b + a, {4, 0.1F * 0.7F + 0.1F, 1e30F * 1e30F + 1e30F, -24});
}

TEST(Root, IsThatOfEachLane)
{
    ExpectLanes(Root(Float4{4, 2, 0, 1e30F}), {2, std::sqrt(2.0F), 0, std::sqrt(1e30F)});
}

TEST(Choose, TakesEachLaneFromOneOfTwo)
{
    const Float4 a{1, 5, 3, 7};
    const Float4 b{2, 4, 3, 8};
    ExpectLanes(Choose(a < b, a, b), {1, 4, 3, 7});
    const Int4 places = Choose(a < b, Int4{} + 10, Int4{} + 20);
    EXPECT_EQ(places[0], 10);
    EXPECT_EQ(places[1], 20);
}

TEST(LaneBits, HasLaneZeroInTheLowestBit)
{
    EXPECT_EQ(LaneBits(Int4{}), 0U);
    EXPECT_EQ(LaneBits(Int4{-1, 0, 0, 0}), 1U);
    EXPECT_EQ(LaneBits(Int4{0, -1, 0, -1}), 10U);
}

TEST(Transpose, ExchangesRowsAndColumns)
{
    Float4 a{0, 1, 2, 3};
    Float4 b{10, 11, 12, 13};
    Float4 c{20, 21, 22, 23};
    Float4 d{30, 31, 32, 33};
    Transpose(a, b, c, d);
    ExpectLanes(a, {0, 10, 20, 30});
    ExpectLanes(b, {1, 11, 21, 31});
    ExpectLanes(c, {2, 12, 22, 32});
    ExpectLanes(d, {3, 13, 23, 33});
}

} // namespace sprout::stretch
