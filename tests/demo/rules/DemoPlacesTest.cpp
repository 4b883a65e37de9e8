// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/rules/DemoPlaces.h"

#include <gtest/gtest.h>

#include <cmath>

namespace sprout {
namespace {

constexpr BoxSize kLink{200, 25};
constexpr BoxSize kRoom{1280, 774};

TEST(PlaceDemo, LeavesAMarginAroundThePicture)
{
    const DemoPlaces places = PlaceDemo({780, 540}, kRoom, kLink);
    EXPECT_EQ(places.body, (BoxSize{784, 575}));
    EXPECT_EQ(places.picture, (Box{2, 0, 780, 540}));
    EXPECT_EQ(places.link, (Box{292, 545, 200, 25}));
}

TEST(PlaceDemo, ShowsALargerPictureSmaller)
{
    EXPECT_EQ(PlaceDemo({2552, 100}, kRoom, kLink).picture, (Box{2, 0, 1276, 50}));
    EXPECT_EQ(PlaceDemo({100, 1478}, kRoom, kLink).picture, (Box{87, 0, 50, 749}));
    EXPECT_EQ(PlaceDemo({2552, 1478}, kRoom, kLink).body, (BoxSize{1280, 774}));
    EXPECT_EQ(PlaceDemo({1276, 739}, kRoom, kLink).picture, (Box{2, 0, 1276, 739}));
}

TEST(PlaceDemo, ShowsAPictureThatJustFitsAtItsSize)
{
    const DemoPlaces places = PlaceDemo({780, 540}, {800, 574}, kLink);
    EXPECT_EQ(places.body, (BoxSize{784, 574}));
    EXPECT_EQ(places.picture, (Box{2, 0, 780, 540}));
    EXPECT_EQ(PlaceDemo({780, 549}, {800, 574}, kLink).picture, (Box{2, 0, 780, 549}));
    EXPECT_EQ(PlaceDemo({780, 550}, {800, 574}, kLink).picture.height, 549);
}

TEST(PlaceDemo, HasRoomForTheLinkBelowASmallPicture)
{
    const DemoPlaces places = PlaceDemo({1, 1}, kRoom, kLink);
    EXPECT_EQ(places.body, (BoxSize{224, 36}));
    EXPECT_EQ(places.picture, (Box{111, 0, 1, 1}));
}

TEST(PlaceDemo, ShowsSomethingOfALongPicture)
{
    EXPECT_EQ(PlaceDemo({4096, 1}, kRoom, kLink).picture, (Box{2, 0, 1276, 1}));
    EXPECT_EQ(PlaceDemo({10, 10}, {0, 0}, kLink).picture.width, 1);
}

TEST(PointInPicture, ScalesThePointerBack)
{
    EXPECT_EQ(PointInPicture({7, 9}, {780, 540}, {780, 540}), (DemoPoint{7, 9}));
    EXPECT_EQ(PointInPicture({10, 20}, {200, 100}, {100, 50}), (DemoPoint{20, 40}));
    EXPECT_EQ(PointInPicture({99, 49}, {200, 100}, {100, 50}), (DemoPoint{198, 98}));
    EXPECT_EQ(PointInPicture({-1, -1}, {200, 100}, {100, 50}), (DemoPoint{-2, -2}));
}

TEST(ShownRectangle, CoversThePixelsOfTheRectangle)
{
    EXPECT_EQ(ShownRectangle({10, 20, 40, 60}, {780, 540}, {780, 540}), (Box{10, 20, 31, 41}));
    EXPECT_EQ(ShownRectangle({10, 20, 39, 59}, {200, 100}, {100, 50}), (Box{5, 10, 15, 20}));
}

TEST(ShownRectangle, StaysInsideThePicture)
{
    EXPECT_EQ(ShownRectangle({-10, -20, 4294967294, 4294967294}, {780, 540}, {780, 540}), (Box{0, 0, 780, 540}));
    EXPECT_EQ(ShownRectangle({800, 20, 900, 60}, {780, 540}, {780, 540}), (Box{}));
    EXPECT_EQ(ShownRectangle({5, 5, 5, 5}, {2000, 2000}, {100, 100}), (Box{0, 0, 1, 1}));
}

TEST(PulseStrength, SwellsAndFadesGently)
{
    EXPECT_NEAR(PulseStrength(0), 0, 1e-9);
    EXPECT_NEAR(PulseStrength(16), 1, 1e-9);
    EXPECT_NEAR(PulseStrength(32), 0, 1e-9);
    for (int tick = 0; tick < 64; ++tick)
        EXPECT_LT(std::abs(PulseStrength(tick + 1) - PulseStrength(tick)), 0.11) << tick;
}

} // namespace
} // namespace sprout
