// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/TimeMap.h"

#include <gtest/gtest.h>

namespace sprout::stretch {

TEST(TimeMap, LeavesTheAttackAndReachesTheEndExactly)
{
    const TimeMap map(662, 10000, 20000);
    EXPECT_EQ(map(0), 0);
    EXPECT_EQ(map(661), 661);
    EXPECT_EQ(map(662), 662);
    EXPECT_EQ(map(20000), 10000);
    EXPECT_EQ(map(662 + (20000 - 662) / 2), 662 + (10000 - 662) / 2);
}

TEST(TimeMap, GoesOnEvenlyBeyondTheEnd)
{
    const TimeMap map(0, 1000, 500);
    EXPECT_EQ(map(600), 1200);
}

} // namespace sprout::stretch
