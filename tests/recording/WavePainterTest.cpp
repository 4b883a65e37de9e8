// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WavePainter.h"

#include <set>

#include "recording/WavePicFixture.h"

namespace sprout {
namespace {

class WavePainterTest : public WavePicFixture {};

std::vector<std::int16_t> Peaks(std::initializer_list<std::pair<int, int>> peaks)
{
    std::vector<std::int16_t> samples(100);
    for (const auto& [sample, value] : peaks)
        samples[static_cast<std::size_t>(sample - 1)] = static_cast<std::int16_t>(value);
    return samples;
}

TEST_F(WavePainterTest, IsBackgroundAloneForAnEmptyWave)
{
    Show(WaveData());
    const QImage image = pic.Draw(1);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ASSERT_EQ(image.pixelColor(x, y), Back()) << x << ", " << y;
}

TEST_F(WavePainterTest, DrawsAPointForASingleSample)
{
    Show(SilenceOf(1));
    EXPECT_EQ(Pixel(0, 32), LeftColour());
    EXPECT_EQ(Pixel(1, 32), Centre());
    EXPECT_EQ(Pixel(100, 32), Centre());
    EXPECT_EQ(Pixel(0, 31), Back());
    EXPECT_EQ(Pixel(0, 33), Back());
}

TEST_F(WavePainterTest, DrawsLinesWithBothEnds)
{
    Show(MonoOf(Peaks({{51, 16384}, {61, -16384}}))); // x 50 and 60, 16 rows from the middle
    EXPECT_EQ(Pixel(50, 16), LeftColour());
    EXPECT_EQ(Pixel(50, 15), Back());
    EXPECT_EQ(Pixel(60, 48), LeftColour());
    EXPECT_EQ(Pixel(60, 49), Back());
    EXPECT_EQ(Pixel(0, 32), LeftColour());
    EXPECT_EQ(Pixel(99, 32), LeftColour());
    EXPECT_EQ(Pixel(100, 32), Centre());
}

TEST_F(WavePainterTest, DrawsTheRightChannelOverTheLeft)
{
    Show(StereoOf(Peaks({{51, 16384}}), Peaks({{51, 8192}})));
    EXPECT_EQ(Pixel(50, 16), LeftColour());
    EXPECT_EQ(Pixel(50, 24), RightColour());
    EXPECT_EQ(Pixel(50, 23), LeftColour());
    EXPECT_EQ(Pixel(0, 32), RightColour());
}

TEST_F(WavePainterTest, DrawsASelectedPlaceAsDashes)
{
    view.SelectionStart = view.SelectionEnd = 21;
    Show(SilenceOf(100));
    EXPECT_EQ(Pixel(20, 1), Back());
    for (const int y : {2, 5, 10, 13, 58, 61})
        EXPECT_EQ(Pixel(20, y), Selected()) << y;
    for (const int y : {6, 9, 14, 62, 63, 64})
        EXPECT_EQ(Pixel(20, y), Back()) << y;
    EXPECT_EQ(Pixel(19, 2), Back());
    EXPECT_EQ(Pixel(21, 2), Back());
}

TEST_F(WavePainterTest, FillsASelectedPartWithBothItsEdgesBehindTheWave)
{
    view.SelectionStart = 21;
    view.SelectionEnd = 41;
    Show(SilenceOf(100));
    for (const int y : {0, 64})
        for (const int x : {20, 40})
            EXPECT_EQ(Pixel(x, y), Selected()) << x << ", " << y;
    EXPECT_EQ(Pixel(19, 0), Back());
    EXPECT_EQ(Pixel(41, 0), Back());
    EXPECT_EQ(Pixel(30, 32), LeftColour());
}

TEST_F(WavePainterTest, TakesItsColoursFromTheSettings)
{
    Shared().WaveColours.NormalBackColor = 0x123456;
    Show(WaveData());
    EXPECT_EQ(Pixel(5, 5), QColor(0x56, 0x34, 0x12));
}

TEST_F(WavePainterTest, IsSharpOnEveryScreen)
{
    view.SelectionStart = 21;
    view.SelectionEnd = 41;
    Show(StereoOf(Peaks({{51, 16384}, {61, -9000}}), Peaks({{71, 12345}})));
    const std::set<QRgb> told{Back().rgb(), Selected().rgb(), Centre().rgb(), LeftColour().rgb(), RightColour().rgb()};
    for (const double ratio : {1.25, 1.5, 2.0, 3.0}) {
        const QImage image = pic.Draw(ratio);
        EXPECT_EQ(image.size(), (QSizeF(kWavePicSize) * ratio).toSize());
        std::set<QRgb> seen;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                seen.insert(image.pixel(x, y));
        EXPECT_EQ(seen, told) << ratio;
    }
}

TEST_F(WavePainterTest, DrawsThePixelsOfAPointOnAFineScreen)
{
    Show(SilenceOf(100));
    const QImage image = pic.Draw(2);
    for (const int y : {65, 66}) // the middle is row 32.5
        for (const int x : {0, 100, 199})
            EXPECT_EQ(image.pixelColor(x, y), LeftColour()) << x << ", " << y;
    for (const int y : {64, 67})
        EXPECT_EQ(image.pixelColor(100, y), Back()) << y;
}

} // namespace
} // namespace sprout
