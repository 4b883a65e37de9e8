// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/ScaledPicture.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

constexpr std::uint32_t kWhite = 0xFFFFFF;

/// A picture in which each pixel is 1 + x + 256 y.
Picture Counting(int width, int height)
{
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels.push_back(static_cast<std::uint32_t>(1 + x + 256 * y));
    return {width, height, std::move(pixels)};
}

TEST(ScaledPicture, AveragesEachColourByItself)
{
    const Picture scaled = ScaledPicture({2, 2, {0x000000, 0x0A64C8, 0x040000, 0x020401}}, 1, 1);
    EXPECT_EQ(scaled.Width(), 1);
    EXPECT_EQ(scaled.Height(), 1);
    EXPECT_EQ(scaled.Pixel(0, 0), 0x041A32U);
}

TEST(ScaledPicture, RepeatsThePixelsOfASmallerPicture)
{
    const Picture scaled = ScaledPicture(Counting(2, 1), 4, 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(scaled.Pixel(x, y), x < 2 ? 1U : 2U);
}

TEST(FittedPicture, IsThePictureItselfWhereItHasTheSize)
{
    const Picture picture = Counting(32, 32);
    EXPECT_TRUE(SamePicture(FittedPicture(picture), picture));
    EXPECT_TRUE(FittedPicture({}).IsNothing());
}

TEST(FittedPicture, FillsTheSquareWithASquarePicture)
{
    const Picture small = FittedPicture(Counting(16, 16));
    ASSERT_EQ(small.Width(), 32);
    ASSERT_EQ(small.Height(), 32);
    EXPECT_EQ(small.Pixel(0, 0), 1U);
    EXPECT_EQ(small.Pixel(31, 31), 1U + 15 + 256 * 15);
    const Picture large = FittedPicture(Counting(64, 64));
    EXPECT_EQ(large.Pixel(31, 0), 1U + 63 + 256) << "of 63, 64 and a row of 0, 1: halves go up";
}

TEST(FittedPicture, KeepsTheProportionsAndLeavesWhiteBeside)
{
    const Picture wide = FittedPicture(Counting(64, 32));
    ASSERT_EQ(wide.Height(), 32);
    EXPECT_EQ(wide.Pixel(0, 7), kWhite);
    EXPECT_NE(wide.Pixel(0, 8), kWhite);
    EXPECT_NE(wide.Pixel(31, 23), kWhite);
    EXPECT_EQ(wide.Pixel(31, 24), kWhite);
    const Picture high = FittedPicture(Counting(10, 40));
    EXPECT_EQ(high.Pixel(11, 0), kWhite);
    EXPECT_NE(high.Pixel(12, 0), kWhite);
    EXPECT_NE(high.Pixel(19, 31), kWhite);
    EXPECT_EQ(high.Pixel(20, 31), kWhite);
    const Picture line = FittedPicture(Counting(1, 4000));
    EXPECT_NE(line.Pixel(15, 0), kWhite);
    EXPECT_EQ(line.Pixel(16, 0), kWhite);
}

} // namespace
} // namespace sprout
