// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/Errors.h"

namespace sprout {
namespace {

TEST(RoundHalfEven, TakesTiesToTheEvenNeighbour)
{
    EXPECT_EQ(RoundHalfEven(0.5), 0);
    EXPECT_EQ(RoundHalfEven(1.5), 2);
    EXPECT_EQ(RoundHalfEven(2.5), 2);
    EXPECT_EQ(RoundHalfEven(-0.5), 0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2);
    EXPECT_EQ(RoundHalfEven(2.4999), 2);
}

TEST(RoundHalfEven, ReachesTheEndsOfThe32BitNumbersAndThrowsBeyond)
{
    EXPECT_EQ(RoundHalfEven(2147483647.4), 2147483647);
    EXPECT_EQ(RoundHalfEven(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(static_cast<void>(RoundHalfEven(2147483647.5)), RunTimeError);
    EXPECT_THROW(static_cast<void>(RoundHalfEven(-2147483649.0)), RunTimeError);
    EXPECT_THROW(static_cast<void>(RoundHalfEven(std::nan(""))), RunTimeError);
    EXPECT_THROW(static_cast<void>(RoundHalfEven(std::numeric_limits<double>::infinity())), RunTimeError);
}

TEST(NumberPrefix, TakesTheLongestNumberAtTheFront)
{
    EXPECT_EQ(NumberPrefix("12"), 12);
    EXPECT_EQ(NumberPrefix("-3.5x"), -3.5);
    EXPECT_EQ(NumberPrefix("+7"), 7);
    EXPECT_EQ(NumberPrefix(" 1x"), 1);
    EXPECT_EQ(NumberPrefix("\t2"), 2);
    EXPECT_EQ(NumberPrefix("1.0"), 1);
    EXPECT_EQ(NumberPrefix(".5"), 0.5);
    EXPECT_EQ(NumberPrefix("1e2,9"), 100);
    EXPECT_EQ(NumberPrefix("2.0.1"), 2);
}

TEST(NumberPrefix, IsZeroWhereNoNumberStands)
{
    for (const char* text : {"", " ", "x1", "-", "+", "--1", "+-1", "-+1", "inf", "nan", "-inf", ".", "e5"})
        EXPECT_EQ(NumberPrefix(text), 0) << text;
}

TEST(NumberPrefix, TellsTooLargeNumbersAsInfiniteAndTooSmallOnesAsZero)
{
    EXPECT_EQ(NumberPrefix("1e999"), std::numeric_limits<double>::infinity());
    EXPECT_EQ(NumberPrefix("-1e999"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(NumberPrefix("1e-999"), 0);
}

} // namespace
} // namespace sprout
