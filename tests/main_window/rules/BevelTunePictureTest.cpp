// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/BevelTunePicture.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

Picture PlainPictureOf(int width, int height, std::uint32_t colour)
{
    return {width, height,
            std::vector<std::uint32_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), colour)};
}

TEST(BevelTunePicture, LeavesTheMiddleAlone)
{
    const Picture bevelled = BevelTunePicture(PlainPictureOf(32, 32, 0x102030));
    for (int y = 2; y < 30; ++y)
        for (int x = 2; x < 30; ++x)
            EXPECT_EQ(bevelled.Pixel(x, y), 0x102030u);
}

TEST(BevelTunePicture, ShadesEachComponentOfEachLine)
{
    // 200, 100, 0: x 0.7 = 140, 70, 0; x 0.4 = 80, 40, 0; 255 - 55 x 0.4 = 233, 255 - 155 x 0.4 = 193, 153;
    // 255 - 55 x 0.8 = 211, 255 - 155 x 0.8 = 131, 51.
    const Picture bevelled = BevelTunePicture(PlainPictureOf(32, 32, 0xC86400));
    EXPECT_EQ(bevelled.Pixel(10, 30), 0x8C4600u);
    EXPECT_EQ(bevelled.Pixel(30, 10), 0x8C4600u);
    EXPECT_EQ(bevelled.Pixel(10, 31), 0x502800u);
    EXPECT_EQ(bevelled.Pixel(31, 10), 0x502800u);
    EXPECT_EQ(bevelled.Pixel(10, 1), 0xE9C199u);
    EXPECT_EQ(bevelled.Pixel(1, 10), 0xE9C199u);
    EXPECT_EQ(bevelled.Pixel(10, 0), 0xD38333u);
    EXPECT_EQ(bevelled.Pixel(0, 10), 0xD38333u);
}

TEST(BevelTunePicture, ShadesCrossingsByEachLineInOrder)
{
    const Picture bevelled = BevelTunePicture(PlainPictureOf(32, 32, 0x000064));
    EXPECT_EQ(bevelled.Pixel(30, 30), 49u);                 // 100 x 0.7 x 0.7
    EXPECT_EQ(bevelled.Pixel(31, 31), 16u);                 // 100 x 0.4 x 0.4
    EXPECT_EQ(bevelled.Pixel(30, 31), 40u);                 // column 30 ends at row 30
    EXPECT_EQ(bevelled.Pixel(31, 30), 40u);                 // row 30 ends at column 30
    EXPECT_EQ(bevelled.Pixel(1, 1) & 0xFF, 230u);           // 255 - 155 x 0.4 = 193, 255 - 62 x 0.4 = 230.2
    EXPECT_EQ(bevelled.Pixel(0, 0) & 0xFF, 156u);           // 131, then 255 - 124 x 0.8 = 155.8
    EXPECT_EQ(bevelled.Pixel(1, 30) & 0xFF, 181u);          // 70, then 255 - 185 x 0.4
    EXPECT_EQ(bevelled.Pixel(30, 1) & 0xFF, 181u);          // the same across
    EXPECT_EQ(bevelled.Pixel(1, 0), 0x333383u);             // column 1 begins at row 1
    EXPECT_EQ(bevelled.Pixel(0, 1), 0x333383u);             // row 1 begins at column 1
    EXPECT_EQ(bevelled.Pixel(0, 31) & 0xFF, 131u);          // row 31 begins at column 1
    EXPECT_EQ(bevelled.Pixel(1, 31), 40u);                  // column 1 ends at row 30
    EXPECT_EQ(bevelled.Pixel(31, 0) & 0xFF, 131u);          // column 31 begins at row 1
    EXPECT_EQ(bevelled.Pixel(31, 1), 40u);                  // row 1 ends at column 30
    EXPECT_EQ(bevelled.Pixel(30, 0), 0x333383u);            // column 30 begins at row 1
    EXPECT_EQ(bevelled.Pixel(0, 30) & 0xFFFFFF, 0x333383u); // row 30 begins at column 1
}

TEST(BevelTunePicture, RoundsTheShadedComponent)
{
    EXPECT_EQ(BevelTunePicture(PlainPictureOf(32, 32, 3)).Pixel(10, 30), 2u); // 2.1
    EXPECT_EQ(BevelTunePicture(PlainPictureOf(32, 32, 4)).Pixel(10, 31), 2u); // 1.6
}

TEST(BevelTunePicture, TakesPicturesOfAnySize)
{
    EXPECT_TRUE(BevelTunePicture(Picture()).IsNothing());
    for (const int side : {1, 2, 3}) {
        const Picture bevelled = BevelTunePicture(PlainPictureOf(side, side, 0x808080));
        EXPECT_EQ(bevelled.Width(), side);
    }
}

TEST(BevelTunePicture, GivesANewPicture)
{
    const Picture picture = PlainPictureOf(32, 32, 0x808080);
    EXPECT_FALSE(SamePicture(picture, BevelTunePicture(picture)));
    EXPECT_EQ(picture.Pixel(0, 0), 0x808080u);
}

} // namespace
} // namespace sprout
