// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/Sizes.h"

#include <gtest/gtest.h>

namespace sprout::stretch {

TEST(SizesFor, HalvesEveryLengthForHalfTheRate)
{
    EXPECT_EQ(SizesFor(44100).longWindow, 3072);
    EXPECT_EQ(SizesFor(22050).longWindow, 1536);
    EXPECT_EQ(SizesFor(11025).longWindow, 768);
    EXPECT_EQ(SizesFor(11025).attack, SizesFor(44100).attack / 4);
    EXPECT_EQ(SizesFor(11025).nominalRate, 11025);
}

TEST(SizesFor, TakesTheNearestOfTheThreeRatesForAnyOther)
{
    EXPECT_EQ(SizesFor(1).longWindow, 768);
    EXPECT_EQ(SizesFor(24000).longWindow, 1536);
    EXPECT_EQ(SizesFor(192000).longWindow, 3072);
}

TEST(ResultLength, RoundsAHalfUp)
{
    EXPECT_EQ(ResultLength(1001, 0.5), 501);
    EXPECT_EQ(ResultLength(1, 0.5), 1);
    EXPECT_EQ(ResultLength(1001, 1.5), 1502);
    EXPECT_EQ(ResultLength(0, 2), 0);
}

} // namespace sprout::stretch
