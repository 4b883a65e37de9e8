// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/WelcomePlaces.h"

#include <gtest/gtest.h>

#include <utility>

namespace sprout {
namespace {

TEST(WelcomePlaces, PutsTheCardInTheMiddleOfItsStripAsWideAsItsTextsNeed)
{
    const WelcomePlaces places = PlaceWelcome({6, 512, 788, 44}, {75, 165, 145});
    EXPECT_EQ(places.card, (Box{92, 512, 616, 44}));
    EXPECT_TRUE(places.hasTitle);
    EXPECT_EQ(places.sprout, (Box{12, 4, 36, 36}));
    EXPECT_EQ(places.title, (Box{54, 0, 75, 44}));
    EXPECT_EQ(places.playPicture, (Box{149, 4, 36, 36}));
    EXPECT_EQ(places.play, (Box{191, 0, 165, 44}));
    EXPECT_EQ(places.demoPicture, (Box{376, 4, 36, 36}));
    EXPECT_EQ(places.demo, (Box{418, 0, 145, 44}));
    EXPECT_EQ(places.closeButton, (Box{583, 11, 22, 22}));
}

TEST(WelcomePlaces, DropsSproutAndTitleWhereTheStripIsTooNarrow)
{
    EXPECT_TRUE(PlaceWelcome({6, 512, 616, 44}, {75, 165, 145}).hasTitle);
    const WelcomePlaces places = PlaceWelcome({6, 512, 615, 44}, {75, 165, 145});
    EXPECT_FALSE(places.hasTitle);
    EXPECT_EQ(places.card, (Box{74, 512, 479, 44}));
    EXPECT_EQ(places.playPicture, (Box{12, 4, 36, 36}));
    EXPECT_EQ(places.play, (Box{54, 0, 165, 44}));
    EXPECT_EQ(places.demoPicture, (Box{239, 4, 36, 36}));
    EXPECT_EQ(places.demo, (Box{281, 0, 145, 44}));
    EXPECT_EQ(places.closeButton, (Box{446, 11, 22, 22}));
}

TEST(WelcomePlaces, LetsTheTextsShareANarrowStrip)
{
    const auto widths = [](std::int32_t play, std::int32_t demo) {
        const WelcomePlaces places = PlaceWelcome({6, 300, 521, 44}, {75, play, demo});
        return std::pair(places.play.width, places.demo.width);
    };
    EXPECT_EQ(widths(250, 200), std::pair(176, 176));
    EXPECT_EQ(widths(300, 100), std::pair(252, 100)) << "the shorter text leaves the other what it does not need";
    EXPECT_EQ(widths(100, 300), std::pair(100, 252));
    EXPECT_EQ(PlaceWelcome({6, 300, 521, 44}, {75, 250, 200}).card, (Box{6, 300, 521, 44}));
}

TEST(WelcomePlaces, PutsTheHandOverACornerOfItsButtonAndNotOverTheNeighbours)
{
    EXPECT_EQ(PlaceWelcomeHand({8, 6, 56, 56}), (Box{41, 39, 28, 28}));
    EXPECT_EQ(PlaceWelcomeHand({8, 6, 40, 40}), (Box{33, 31, 20, 20}));
}

} // namespace
} // namespace sprout
