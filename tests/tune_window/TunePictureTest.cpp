// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TunePicture.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include <vector>

namespace sprout {
namespace {

constexpr std::uint32_t kRed = 0x0000FF;
constexpr std::uint32_t kGreen = 0x00FF00;

/// Red in the first 32 columns, green in the others.
Picture WidePicture(int width)
{
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < width * kPictureSide; ++i)
        pixels.push_back(i % width < kPictureSide ? kRed : kGreen);
    return {width, kPictureSide, std::move(pixels)};
}

class TunePictureTest : public testing::Test {
protected:
    TunePictureTest() { tunePic.resize(76, 76); }

    QColor PixelAt(int x, int y) { return tunePic.grab().toImage().pixelColor(x, y); }

    TunePicture tunePic{nullptr};
};

TEST_F(TunePictureTest, DrawsAPictureAtAWholeMultipleOfItsSize)
{
    tunePic.SetPicture(WidePicture(32));
    EXPECT_EQ(PixelAt(6, 38), QColor(255, 0, 0));
    EXPECT_EQ(PixelAt(69, 38), QColor(255, 0, 0));
    EXPECT_EQ(PixelAt(4, 38), QColor(Qt::white));
    EXPECT_EQ(PixelAt(71, 38), QColor(Qt::white));
}

TEST_F(TunePictureTest, SmoothsWhatItEnlarges)
{
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < kPictureSide * kPictureSide; ++i)
        pixels.push_back(i % kPictureSide < 16 ? kRed : kGreen);
    tunePic.SetPicture({kPictureSide, kPictureSide, std::move(pixels)});
    const QColor between = PixelAt(38, 38);
    EXPECT_GT(between.red(), 20);
    EXPECT_GT(between.green(), 20);
}

TEST_F(TunePictureTest, ShowsOfALargerPictureWhatATuneFileKeeps)
{
    tunePic.SetPicture(WidePicture(100));
    EXPECT_EQ(PixelAt(69, 38), QColor(255, 0, 0));
}

TEST_F(TunePictureTest, IsClearedByNoPicture)
{
    tunePic.SetPicture(WidePicture(32));
    tunePic.SetPicture({});
    EXPECT_EQ(PixelAt(38, 38), QColor(Qt::white));
    EXPECT_TRUE(tunePic.Picture().IsNothing());
}

TEST_F(TunePictureTest, IsClickedByMouseAndByKeyboard)
{
    const QSignalSpy clicks(&tunePic, &QAbstractButton::clicked);
    QTest::mouseClick(&tunePic, Qt::LeftButton);
    QTest::keyClick(&tunePic, Qt::Key_Space);
    QTest::keyClick(&tunePic, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 3);
}

} // namespace
} // namespace sprout
