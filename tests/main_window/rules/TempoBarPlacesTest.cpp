// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TempoBarPlaces.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr std::int32_t kPercentWidth = 40;
constexpr std::int32_t kSecondsWidth = 60;
constexpr std::int32_t kLineWidth = 184 + 8 + kPercentWidth + 8 + kSecondsWidth;

TempoBarPlaces Place(std::int32_t width, std::int32_t height)
{
    return PlaceTempoBar(width, height, kPercentWidth, kSecondsWidth);
}

TEST(TempoBarPlaces, PutsSlotAndLabelsInOneLineWhereTheyFit)
{
    for (const std::int32_t width : {kLineWidth, 2000}) {
        const TempoBarPlaces places = Place(width, 40);
        EXPECT_EQ(places.slotWidth, 184);
        EXPECT_EQ(places.percent, (Box{192, 0, 40, 40}));
        EXPECT_EQ(places.seconds, (Box{240, 0, 60, 40}));
        EXPECT_EQ(places.width, kLineWidth);
        EXPECT_EQ(places.height, 40);
        EXPECT_FALSE(places.hasLabelsBelow);
    }
}

TEST(TempoBarPlaces, StacksTheLabelsBesideAShorterSlotInANarrowRoom)
{
    const TempoBarPlaces places = Place(170, 52);
    EXPECT_EQ(places.slotWidth, 170 - 8 - 60);
    EXPECT_EQ(places.percent, (Box{110, 0, 60, 20}));
    EXPECT_EQ(places.seconds, (Box{110, 20, 60, 20}));
    EXPECT_EQ(places.width, 170);
    EXPECT_EQ(Place(kLineWidth - 1, 40).slotWidth, 184);
    EXPECT_EQ(Place(90, 40).slotWidth, 60) << "no shorter than a child can use";
    EXPECT_EQ(Place(90, 40).width, 60 + 8 + 60);
}

TEST(TempoBarPlaces, PutsTheLabelsBelowTheEndsOfTheStemInAHighRoom)
{
    const TempoBarPlaces places = Place(126, 53);
    EXPECT_TRUE(places.hasLabelsBelow);
    EXPECT_EQ(places.slotWidth, 126);
    EXPECT_EQ(places.width, 126);
    EXPECT_EQ(places.height, 53);
    EXPECT_EQ(places.percent, (Box{13, 37, 40, 16}));
    EXPECT_EQ(places.seconds, (Box{53, 37, 60, 16}));
    EXPECT_EQ(Place(2000, 53).slotWidth, 184);
}

} // namespace
} // namespace sprout
