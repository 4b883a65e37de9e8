// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WavePoints.h"

#include <gmock/gmock.h>

#include "recording/rules/WaveMaker.h"

namespace sprout {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

WaveView WholeView()
{
    WaveView view;
    view.FitAll = true;
    return view;
}

WaveDrawing DrawWhole(const WaveData& wave, WavePicSize size)
{
    WaveView view = WholeView();
    return DrawWaveform(wave, size, view);
}

TEST(DrawWaveform, DrawsNothingOfAnEmptyWave)
{
    WaveView view = WholeView();
    view.SelectionStart = view.SelectionEnd = 1;
    const WaveDrawing drawing = DrawWaveform(WaveData(), {100, 60}, view);
    EXPECT_FALSE(drawing.HasWave);
    EXPECT_EQ(drawing.Mark, SelectionMark::None);
    EXPECT_THAT(drawing.Left, IsEmpty());
}

TEST(DrawWaveform, PutsEachSampleAtItsPixelAndItsHeight)
{
    std::vector<std::int16_t> samples(10);
    samples[0] = 32767;
    samples[1] = -32768;
    samples[2] = 1024;
    const WaveDrawing drawing = DrawWhole(MonoOf(samples), {21, 65});
    ASSERT_THAT(drawing.Left, SizeIs(10));
    EXPECT_EQ(drawing.CentreY, 32.5);
    EXPECT_EQ(drawing.Left[0], (WavePoint{0, 32.5 - 32767 * (64.0 / 65536)}));
    EXPECT_EQ(drawing.Left[1], (WavePoint{2, 64.5}));
    EXPECT_EQ(drawing.Left[2], (WavePoint{4, 31.5}));
    EXPECT_EQ(drawing.Left[9], (WavePoint{18, 32.5}));
}

TEST(DrawWaveform, ScalesEightBitsByTheirUnits)
{
    const WaveDrawing drawing = DrawWhole(MonoOf({127, -128}, 8), {21, 257});
    ASSERT_THAT(drawing.Left, SizeIs(2));
    EXPECT_EQ(drawing.Left[0].Y, 128.5 - 127);
    EXPECT_EQ(drawing.Left[1].Y, 128.5 + 128);
}

TEST(DrawWaveform, LooksAtEveryStepthSampleAndAtNoPeakBetween)
{
    std::vector<std::int16_t> samples(1000);
    samples[500] = 30000; // sample 501: 1 + 100 x 5
    samples[502] = 20000;
    const WaveDrawing drawing = DrawWhole(MonoOf(samples), {201, 65});
    ASSERT_THAT(drawing.Left, SizeIs(200)); // 1, 6, 11 ... 996
    EXPECT_DOUBLE_EQ(drawing.Left[100].X, 100);
    EXPECT_DOUBLE_EQ(drawing.Left[100].Y, 32.5 - 30000 * 64.0 / 65536);
    EXPECT_EQ(drawing.Left[101].Y, 32.5);
    EXPECT_DOUBLE_EQ(drawing.Left.back().X, 199);
}

TEST(DrawWaveform, DrawsToTheLastSampleInView)
{
    WaveView view;
    view.First = 101;
    view.Span = 100;
    const WaveDrawing drawing = DrawWaveform(SilenceOf(1000), {101, 65}, view);
    ASSERT_THAT(drawing.Left, SizeIs(101));
    EXPECT_EQ(drawing.Left.front().X, 0);
    EXPECT_EQ(drawing.Left.back().X, 100);
}

TEST(DrawWaveform, DrawsARightPassForTwoChannelsAlone)
{
    const WaveDrawing stereo = DrawWhole(StereoOf({0, 0}, {1024, -1024}), {11, 65});
    EXPECT_THAT(stereo.Left, ElementsAre(WavePoint{0, 32.5}, WavePoint{1, 32.5}));
    EXPECT_THAT(stereo.Right, ElementsAre(WavePoint{0, 31.5}, WavePoint{1, 33.5}));
    EXPECT_THAT(DrawWhole(MonoOf({0, 0}), {11, 65}).Right, IsEmpty());
}

TEST(DrawWaveform, DrawsOnePointOfAWaveOfOneSample)
{
    EXPECT_THAT(DrawWhole(SilenceOf(1), {11, 65}).Left, ElementsAre(WavePoint{0, 32.5}));
}

struct Marked {
    SelectionMark Mark;
    double Left, Right;
    friend bool operator==(const Marked&, const Marked&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Marked& marked)
    {
        return out << static_cast<int>(marked.Mark) << " from " << marked.Left << " to " << marked.Right;
    }
};

/// What is marked if samples 101 to 201 of 1000 are in view, one per pixel.
Marked MarkOf(std::int32_t start, std::int32_t end)
{
    WaveView view;
    view.First = 101;
    view.Span = 100;
    view.SelectionStart = start;
    view.SelectionEnd = end;
    const WaveDrawing drawing = DrawWaveform(SilenceOf(1000), {101, 65}, view);
    return {drawing.Mark, drawing.MarkLeft, drawing.MarkRight};
}

TEST(DrawWaveform, MarksASingleSampleInViewWithALine)
{
    EXPECT_EQ(MarkOf(101, 101), (Marked{SelectionMark::Line, 0, 0}));
    EXPECT_EQ(MarkOf(150, 150), (Marked{SelectionMark::Line, 49, 49}));
    EXPECT_EQ(MarkOf(201, 201), (Marked{SelectionMark::Line, 100, 100}));
    EXPECT_EQ(MarkOf(100, 100), (Marked{SelectionMark::None, 0, 0}));
    EXPECT_EQ(MarkOf(202, 202), (Marked{SelectionMark::None, 0, 0}));
    EXPECT_EQ(MarkOf(0, 0), (Marked{SelectionMark::None, 0, 0}));
}

TEST(DrawWaveform, MarksARangeWithABoxClippedToTheView)
{
    EXPECT_EQ(MarkOf(111, 121), (Marked{SelectionMark::Box, 10, 20}));
    EXPECT_EQ(MarkOf(1, 121), (Marked{SelectionMark::Box, 0, 20}));
    EXPECT_EQ(MarkOf(111, 1000), (Marked{SelectionMark::Box, 10, 100}));
    EXPECT_EQ(MarkOf(1, 1000), (Marked{SelectionMark::Box, 0, 100}));
    EXPECT_EQ(MarkOf(50, 101), (Marked{SelectionMark::Box, 0, 0}));
    EXPECT_EQ(MarkOf(50, 100), (Marked{SelectionMark::None, 0, 0}));
    EXPECT_EQ(MarkOf(202, 300), (Marked{SelectionMark::None, 0, 0}));
}

TEST(DevicePixel, RoundsHalfToEvenAtTheScreensRatio)
{
    EXPECT_EQ(DevicePixel(0.5, 1), 0);
    EXPECT_EQ(DevicePixel(1.5, 1), 2);
    EXPECT_EQ(DevicePixel(2.5, 1), 2);
    EXPECT_EQ(DevicePixel(-0.5, 1), 0);
    EXPECT_EQ(DevicePixel(1.3, 2), 3);
    EXPECT_EQ(DevicePixel(3, 1.5), 4); // 4.5
}

} // namespace
} // namespace sprout
