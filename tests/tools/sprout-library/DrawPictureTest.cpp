// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/DrawPicture.h"

#include <gtest/gtest.h>

#include <array>

#include "base/Errors.h"
#include "support/TestFolder.h"

namespace sprout {
namespace {

class DrawPictures : public testing::Test {
protected:
    std::filesystem::path Drawing(const std::string& name, const std::string& shapes)
    {
        const std::filesystem::path file = folder.Path() / (name + ".svg");
        WriteBytes(file, "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 64 64\">" + shapes + "</svg>");
        return file;
    }

    TestFolder folder;
};

TEST_F(DrawPictures, LayDrawingsOverEachOtherOnTheGround)
{
    const std::array drawings = {
        Drawing("a", "<rect width=\"64\" height=\"32\" fill=\"#FF0000\"/>"),
        Drawing("b", "<rect width=\"32\" height=\"64\" fill=\"#0000FF\"/>"),
    };
    const Picture picture = DrawPicture(0x102030, drawings);
    ASSERT_EQ(picture.Width(), kPictureSide);
    ASSERT_EQ(picture.Height(), kPictureSide);
    EXPECT_EQ(picture.Pixel(4, 4), 0xFF0000U);   // blue above red, as 0x00BBGGRR
    EXPECT_EQ(picture.Pixel(28, 4), 0x0000FFU);  // red
    EXPECT_EQ(picture.Pixel(28, 28), 0x302010U); // the ground
}

TEST_F(DrawPictures, RefuseWhatIsNoDrawing)
{
    WriteBytes(folder.Path() / "bad.svg", "no drawing");
    EXPECT_THROW(static_cast<void>(DrawPicture(0, std::array{folder.Path() / "bad.svg"})), RunTimeError);
    EXPECT_THROW(static_cast<void>(DrawPicture(0, std::array{folder.Path() / "none.svg"})), RunTimeError);
}

TEST_F(DrawPictures, ShareThePixelsThatAreEqual)
{
    const Picture plain = DrawPicture(0xFFFFFF, {});
    const Picture half = DrawPicture(0xFFFFFF, std::array{Drawing("a", "<rect width=\"64\" height=\"32\"/>")});
    EXPECT_DOUBLE_EQ(SharePixels(plain, plain), 1);
    EXPECT_DOUBLE_EQ(SharePixels(plain, half), 0.5);
}

} // namespace
} // namespace sprout
