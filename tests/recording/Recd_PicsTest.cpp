// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/Recd_Pics.h"

#include <gmock/gmock.h>

#include <QImage>

#include <vector>

#include "ui/look/Palette.h"

namespace sprout {
namespace {

using testing::ElementsAre;

/// How far the frame of a picture reaches in from each edge.
QMargins FrameOf(const QImage& image)
{
    const QPoint middle = image.rect().center();
    const auto depth = [&image](QPoint at, QPoint step) {
        int pixels = 0;
        for (; image.rect().contains(at) && image.pixelColor(at) == kBark; at += step)
            ++pixels;
        return pixels;
    };
    return {depth({0, middle.y()}, {1, 0}), depth({middle.x(), 0}, {0, 1}),
            depth({image.width() - 1, middle.y()}, {-1, 0}), depth({middle.x(), image.height() - 1}, {0, -1})};
}

/// The smallest rectangle around the pixels in which two images of one size differ.
QRect Difference(const QImage& one, const QImage& other)
{
    QRect changed;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (one.pixel(x, y) != other.pixel(x, y))
                changed |= QRect(x, y, 1, 1);
    return changed;
}

class LevelMeterPicTest : public testing::Test {
protected:
    LevelMeterPicTest()
    {
        meter.resize(48, 128);
        meter.MeasureMeter(32767);
    }

    [[nodiscard]] QImage Image() { return meter.grab().toImage(); }
    [[nodiscard]] QColor Pixel(int x, int y) { return Image().pixelColor(x, y); }

    LevelMeterPic meter;
};

TEST_F(LevelMeterPicTest, HasAFrameAroundABarOfAnyHeight)
{
    for (const std::int32_t peak : {0, 20000, 32767}) {
        meter.ShowLevel({peak, 0, false}, kRecordingBarColour);
        EXPECT_EQ(FrameOf(Image()), QMargins(2, 2, 2, 2)) << peak;
    }
}

TEST_F(LevelMeterPicTest, ChangesItsColourAtTheSameLevel)
{
    const MeterView level{16384, 16384, false};
    meter.ShowLevel(level, kRecordingBarColour);
    EXPECT_EQ(Pixel(20, 100), ColourOf(kRecordingBarColour));
    meter.ShowLevel(level, kIdleBarColour);
    EXPECT_EQ(Pixel(20, 100), ColourOf(kIdleBarColour));
}

TEST_F(LevelMeterPicTest, ShowsTheLoudestPeakEvenWhereItIsTooSoftForARow)
{
    meter.ShowLevel({0, 1, false}, kRecordingBarColour);
    EXPECT_EQ(Pixel(20, 124), kSand);
    EXPECT_EQ(Pixel(20, 125), kBark) << "above the frame";
    meter.ShowLevel({0, 0, false}, kRecordingBarColour);
    EXPECT_EQ(Pixel(20, 125), kSand) << "silence";
}

TEST_F(LevelMeterPicTest, HasTheSignOfAnOverloadInItsMiddle)
{
    meter.ShowLevel({}, kRecordingBarColour);
    const QImage before = Image();
    meter.ShowLevel({0, 0, true}, kRecordingBarColour);
    const QRect sign = Difference(before, Image());
    EXPECT_GT(sign.width(), 20);
    EXPECT_NEAR(sign.left(), before.width() - 1 - sign.right(), 1);
}

TEST(RecordingProgressPic, HasALineOfOnePixelAtEachMinuteBetweenItsFrame)
{
    RecordingProgressPic progress;
    progress.resize(568, 18);
    const QImage image = progress.grab().toImage();
    EXPECT_EQ(FrameOf(image), QMargins(2, 2, 2, 2));
    std::vector<int> lines;
    for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, 9) == kBark)
            lines.push_back(x);
    EXPECT_THAT(lines, ElementsAre(0, 1, 189, 378, 566, 567));
}

} // namespace
} // namespace sprout
