// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/FewColours.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(WithFewColours, KeepsAPictureOfFewColours)
{
    QImage picture(16, 16, QImage::Format_RGB32);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            picture.setPixel(x, y, qRgb(x * 16, y * 16, 100));
    const QImage few = WithFewColours(picture);
    EXPECT_EQ(few.format(), QImage::Format_Indexed8);
    EXPECT_EQ(few.convertToFormat(QImage::Format_RGB32), picture);
}

TEST(WithFewColours, KeepsFrequentColoursAndStaysCloseToTheRest)
{
    QImage picture(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            picture.setPixel(x, y, y < 128 ? qRgb(12, 34, 56) : qRgb(x, x, (y - 128) * 2));
    const QImage few = WithFewColours(picture);
    EXPECT_EQ(few.colorCount(), 256);
    EXPECT_EQ(few.pixel(0, 0), qRgb(12, 34, 56));
    for (int y = 128; y < 256; y += 9)
        for (int x = 0; x < 256; x += 7) {
            EXPECT_NEAR(qRed(few.pixel(x, y)), x, 24);
            EXPECT_NEAR(qBlue(few.pixel(x, y)), (y - 128) * 2, 28);
        }
}

TEST(WithFewColours, KeepsPlainColoursThatAreCloseToEachOther)
{
    QImage picture(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            picture.setPixel(x, y, y < 100 ? qRgb(255, 255, 255) : y < 150 ? qRgb(255, 248, 231) : qRgb(x, 255 - x, y));
    const QImage few = WithFewColours(picture, 16);
    EXPECT_EQ(few.colorCount(), 16);
    EXPECT_EQ(few.pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_EQ(few.pixel(0, 120), qRgb(255, 248, 231));
}

} // namespace
} // namespace sprout
