// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Picture.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(Picture, HasIdentityAndNotLikeness)
{
    const Picture a(1, 1, {5});
    const Picture b(1, 1, {5});
    const Picture copy = a;
    EXPECT_TRUE(SamePicture(a, copy));
    EXPECT_FALSE(SamePicture(a, b));
    EXPECT_TRUE(SamePicture(Picture(), Picture()));
    EXPECT_FALSE(SamePicture(a, Picture()));
    EXPECT_TRUE(Picture().IsNothing());
    EXPECT_TRUE(Picture().Pixels().empty());
}

TEST(Picture, ReadsRowByRow)
{
    const Picture picture(2, 2, {1, 2, 3, 4});
    EXPECT_EQ(picture.Pixel(1, 0), 2U);
    EXPECT_EQ(picture.Pixel(0, 1), 3U);
}

TEST(PictureColumns, RunDownEachColumn)
{
    std::vector<std::uint32_t> pixels(kPicturePixels);
    pixels[1] = 7;            // second column, top
    pixels[kPictureSide] = 8; // first column, second from the top
    const auto columns = PictureColumns(Picture(kPictureSide, kPictureSide, pixels));
    EXPECT_EQ(columns[32], 7);
    EXPECT_EQ(columns[1], 8);
    const Picture back = PictureFromColumns(columns);
    EXPECT_EQ(std::vector<std::uint32_t>(back.Pixels().begin(), back.Pixels().end()), pixels);
}

TEST(PictureColumns, CutLargePicturesAndPadSmallOnesWithWhite)
{
    const auto small = PictureColumns(Picture(1, 2, {5, 6}));
    EXPECT_EQ(small[0], 5);
    EXPECT_EQ(small[1], 6);
    EXPECT_EQ(small[2], 0xFFFFFF);
    EXPECT_EQ(small[32], 0xFFFFFF);
    std::vector<std::uint32_t> wide(40 * 33);
    wide[39] = 1;
    wide[40] = 2;
    const auto cut = PictureColumns(Picture(40, 33, wide));
    EXPECT_EQ(cut[1], 2);
    EXPECT_EQ(cut[31 * 32], 0);
}

TEST(PictureFromColumns, DropsWhatIsNoColour)
{
    std::vector<std::int32_t> columns(kPicturePixels, -1);
    EXPECT_EQ(PictureFromColumns(columns).Pixel(0, 0), 0xFFFFFFU);
}

} // namespace
} // namespace sprout
