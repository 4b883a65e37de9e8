// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/Meter.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(PeakMaximum, GoesByTheBits)
{
    EXPECT_EQ(PeakMaximum(16), 32767);
    EXPECT_EQ(PeakMaximum(8), 127);
}

TEST(Meter, IsEmptyAtSilenceAndFullAtTheGreatestPeak)
{
    const Meter meter{128, 32767};
    EXPECT_EQ(meter.BarTop(0), 128);
    EXPECT_EQ(meter.BarTop(32767), 0);
    EXPECT_EQ(meter.BarTop(40000), 0);
    EXPECT_EQ(meter.BarTop(-2000), 128);
    EXPECT_EQ((Meter{128, 127}).BarTop(127), 0);
}

TEST(Meter, RoundsToRowsWithTiesToEven)
{
    const Meter meter{10, 100};
    EXPECT_EQ(meter.BarTop(50), 5);
    EXPECT_EQ(meter.BarTop(45), 6); // 5.5
    EXPECT_EQ(meter.BarTop(55), 4); // 4.5
    EXPECT_EQ(meter.BarTop(4), 10);
    EXPECT_EQ(meter.BarTop(6), 9);
}

TEST(LoudestOfSecond, KeepsTheLoudestForFiftyPieces)
{
    LoudestOfSecond loudest;
    EXPECT_EQ(loudest.Note(100, 500), 500);
    EXPECT_EQ(loudest.Note(110, 900), 900);
    EXPECT_EQ(loudest.Note(120, 300), 900);
    EXPECT_EQ(loudest.Note(159, 200), 900);
    EXPECT_EQ(loudest.Note(160, 100), 300);
    EXPECT_EQ(loudest.Note(400, 0), 0);
}

TEST(LoudestOfSecond, BeginsAnewWithAnotherCapture)
{
    LoudestOfSecond loudest;
    EXPECT_EQ(loudest.Note(100, 500), 500);
    EXPECT_EQ(loudest.Note(1, 20), 20);
}

TEST(ProgressColumns, FillUpToTheLimitAndStandFullBeyondIt)
{
    EXPECT_EQ(ProgressColumns(568, 0, 180), 0);
    EXPECT_EQ(ProgressColumns(568, 90, 180), 284);
    EXPECT_EQ(ProgressColumns(568, 179.9, 180), 568);
    EXPECT_EQ(ProgressColumns(568, 179, 180), 565);
    EXPECT_EQ(ProgressColumns(568, 180, 180), 568);
    EXPECT_EQ(ProgressColumns(568, 12000, 180), 568);
    EXPECT_EQ(ProgressColumns(100, 0.9, 180), 0); // 0.5
    EXPECT_EQ(ProgressColumns(100, 2.7, 180), 2); // 1.5
}

TEST(Meter, ShowsTheSmallestPeakWhereItHasTheRowsForIt)
{
    const Meter meter{1000, 100};
    EXPECT_EQ(meter.BarTop(0), 1000);
    EXPECT_EQ(meter.BarTop(1), 990);
    EXPECT_EQ(meter.BarTop(99), 10);
}

} // namespace
} // namespace sprout
