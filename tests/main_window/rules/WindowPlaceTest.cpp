// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/WindowPlace.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

Box PlaceOn1600x1000(std::string_view size, std::string_view position)
{
    return PlaceFromSettings(size, position, 1600, 1000);
}

TEST(PlaceFromSettings, Takes80PercentInTheMiddleWhenNothingIsSet)
{
    EXPECT_EQ(PlaceOn1600x1000("-1,-1", "-1,-1"), (Box{160, 100, 1280, 800}));
}

TEST(PlaceFromSettings, ReadsTwips)
{
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "300,450"), (Box{20, 30, 1000, 600}));
}

TEST(PlaceFromSettings, HoldsTheSizeAboveTheLeast)
{
    const Box place = PlaceOn1600x1000("7999,2999", "0,0");
    EXPECT_EQ(place.width, 533);
    EXPECT_EQ(place.height, 200);
}

TEST(PlaceFromSettings, ReplacesASizeLargerThanTheScreen)
{
    const Box place = PlaceOn1600x1000("24001,15001", "0,0");
    EXPECT_EQ(place.width, 1280);
    EXPECT_EQ(place.height, 800);
    EXPECT_EQ(PlaceOn1600x1000("24000,15000", "0,0").width, 1600);
}

TEST(PlaceFromSettings, BringsThePositionOntoTheScreen)
{
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "-30,-2").left, 0);
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "-30,-2").top, 0);
    EXPECT_EQ(PlaceOn1600x1000("8000,3000", "24001,15001").left, 1280);
    EXPECT_EQ(PlaceOn1600x1000("8000,3000", "24001,15001").top, 800);
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "-1,-1").left, 300);
}

TEST(PlaceFromSettings, BringsAWindowBackWholeThatWouldLieNearlyOffTheScreen)
{
    const Box whole{600, 400, 1000, 600};
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "23900,14900"), whole);
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "24001,15001"), whole); // on a screen that is gone
    // A place that is half visible is kept.
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "16500,10500"), (Box{1100, 700, 1000, 600}));
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "16515,10500"), (Box{600, 700, 1000, 600}));
    EXPECT_EQ(PlaceOn1600x1000("15000,9000", "16500,10515"), (Box{1100, 400, 1000, 600}));
}

TEST(PlaceFromSettings, ReadsDamagedAndMissingNumbersAs0)
{
    EXPECT_EQ(PlaceOn1600x1000("wide", "15"), (Box{1, 0, 533, 200}));
    EXPECT_EQ(PlaceOn1600x1000("1e400,9000", "").width, 1280);
}

TEST(IsMaximizedSetting, IsTrueFor2Alone)
{
    EXPECT_TRUE(IsMaximizedSetting("2"));
    EXPECT_FALSE(IsMaximizedSetting("1"));
    EXPECT_FALSE(IsMaximizedSetting("0"));
    EXPECT_FALSE(IsMaximizedSetting(""));
}

TEST(PairOfTwips, ComesBackAsItWas)
{
    EXPECT_EQ(PairOfTwips(1000, 601), "15000,9015");
    EXPECT_EQ(PlaceOn1600x1000(PairOfTwips(1000, 601), PairOfTwips(31, 7)), (Box{31, 7, 1000, 601}));
}

} // namespace
} // namespace sprout
