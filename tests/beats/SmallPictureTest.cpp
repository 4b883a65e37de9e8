// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/SmallPicture.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

/// The left half of one colour, the right half of another.
Picture Halves(int width, int height, std::uint32_t left, std::uint32_t right)
{
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels.push_back(x * 2 < width ? left : right);
    return {width, height, std::move(pixels)};
}

TEST(SmallPicture, LeavesASmallPictureWhatItIs)
{
    const Picture small = Halves(32, 32, 1, 2);
    EXPECT_TRUE(SamePicture(SmallPicture(small), small));
    const Picture most = Halves(128, 128, 1, 2);
    EXPECT_TRUE(SamePicture(SmallPicture(most), most));
    EXPECT_TRUE(SmallPicture({}).IsNothing());
}

TEST(SmallPicture, MakesALargePictureSmall)
{
    const Picture small = SmallPicture(Halves(1000, 500, 0x0000FF, 0xFF8000));
    EXPECT_EQ(small.Width(), 128);
    EXPECT_EQ(small.Height(), 128);
    EXPECT_EQ(small.Pixel(0, 0), 0x0000FFU);
    EXPECT_EQ(small.Pixel(62, 127), 0x0000FFU);
    EXPECT_EQ(small.Pixel(65, 0), 0xFF8000U);
    EXPECT_EQ(small.Pixel(127, 127), 0xFF8000U);
}

TEST(SmallPicture, AveragesThePixelsThatFallTogether)
{
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < 256 * 256; ++i)
        pixels.push_back(i % 2 == 0 ? 0x000000U : 0x0A64C8U);
    EXPECT_EQ(SmallPicture({256, 256, std::move(pixels)}).Pixel(5, 5), 0x053264U);
}

TEST(SmallPicture, TakesAPictureThatIsLongInOneDirectionOnly)
{
    const Picture small = SmallPicture(Halves(4096, 1, 3, 4));
    EXPECT_EQ(small.Pixel(0, 127), 3U);
    EXPECT_EQ(small.Pixel(127, 0), 4U);
}

} // namespace
} // namespace sprout
