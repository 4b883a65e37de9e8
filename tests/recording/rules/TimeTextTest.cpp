// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/TimeText.h"

#include <gtest/gtest.h>

#include <limits>

namespace sprout {
namespace {

TEST(TimeText, HasHundredthsWhereTheyAreNotZero)
{
    EXPECT_EQ(TimeText(0), "00");
    EXPECT_EQ(TimeText(0.2F), "00.20");
    EXPECT_EQ(TimeText(7), "07");
    EXPECT_EQ(TimeText(9.05), "09.05");
    EXPECT_EQ(TimeText(12.5), "12.50");
}

TEST(TimeText, HasMinutesAndHoursWhereThereAreSome)
{
    EXPECT_EQ(TimeText(59.8), "59.80");
    EXPECT_EQ(TimeText(60), "01:00");
    EXPECT_EQ(TimeText(63.4), "01:03.40");
    EXPECT_EQ(TimeText(3599), "59:59");
    EXPECT_EQ(TimeText(3600), "1:00:00");
    EXPECT_EQ(TimeText(3603.25), "1:00:03.25");
    EXPECT_EQ(TimeText(36000 + 59 * 60 + 59.9), "10:59:59.90");
}

TEST(TimeText, RoundsSecondsThatAreAlmostAMinuteWithoutCarrying)
{
    EXPECT_EQ(TimeText(59.996), "60");
    EXPECT_EQ(TimeText(0.125), "00.12");
    EXPECT_EQ(TimeText(0.375), "00.38");
}

TEST(TimeText, IsErrorForWhatIsNoTime)
{
    EXPECT_EQ(TimeText(std::numeric_limits<double>::quiet_NaN()), "Error");
    EXPECT_EQ(TimeText(std::numeric_limits<double>::infinity()), "Error");
    EXPECT_EQ(TimeText(1e15), "Error");
}

} // namespace
} // namespace sprout
