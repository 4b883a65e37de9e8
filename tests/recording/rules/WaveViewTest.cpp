// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveView.h"

#include <gtest/gtest.h>

#include "recording/rules/WaveMaker.h"

namespace sprout {
namespace {

constexpr WavePicSize kPic{101, 65};

struct Part {
    std::int32_t First, Span, Last;
    friend bool operator==(const Part&, const Part&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Part& part)
    {
        return out << part.First << " +" << part.Span << " to " << part.Last;
    }
};

Part Place(std::int32_t length, WaveView& view)
{
    const std::int32_t last = PlaceWaveView(SilenceOf(length), kPic, view);
    return {view.First, view.Span, last};
}

Part PlaceAt(std::int32_t length, std::int32_t first, std::int32_t span)
{
    WaveView view;
    view.First = first;
    view.Span = span;
    return Place(length, view);
}

TEST(PlaceWaveView, ShowsTheWholeWaveWhereAllIsToFit)
{
    WaveView view;
    view.First = 500;
    view.Span = 20;
    view.FitAll = true;
    EXPECT_EQ(Place(1000, view), (Part{1, 1000, 1000}));
}

TEST(PlaceWaveView, ShowsTheWholeWaveWhereThereIsNoSpan)
{
    EXPECT_EQ(PlaceAt(1000, 1, 0), (Part{1, 1000, 1000}));
}

TEST(PlaceWaveView, BeginsWithSampleOneWhereTheFirstIsNone)
{
    EXPECT_EQ(PlaceAt(1000, 0, 100), (Part{1, 100, 101}));
}

TEST(PlaceWaveView, HoldsTheSpanToTheLengthAndBeginsAtItsStart)
{
    EXPECT_EQ(PlaceAt(1000, 400, 1001), (Part{1, 1000, 1000}));
}

TEST(PlaceWaveView, ShowsTenSamplesAtLeast)
{
    EXPECT_EQ(PlaceAt(1000, 400, 9), (Part{400, 10, 410}));
    EXPECT_EQ(PlaceAt(1000, 400, 10), (Part{400, 10, 410}));
    EXPECT_EQ(PlaceAt(1000, 400, 11), (Part{400, 11, 411}));
}

TEST(PlaceWaveView, MovesTheViewBackFromTheEnd)
{
    EXPECT_EQ(PlaceAt(1000, 900, 100), (Part{900, 100, 1000}));
    EXPECT_EQ(PlaceAt(1000, 901, 100), (Part{900, 100, 1000}));
    EXPECT_EQ(PlaceAt(1000, -5, 100), (Part{1, 100, 101}));
}

// Intended: a short wave first gets a span of 10, which exceeds its length at the next drawing.
TEST(PlaceWaveView, DrawsAShortWaveWithTenSamplesFirstAndThenWithItsOwnLength)
{
    for (const std::int32_t length : {1, 2, 9}) {
        WaveView view;
        view.FitAll = true;
        EXPECT_EQ(Place(length, view), (Part{1, 10, length}));
        EXPECT_EQ(view.XScale, 10.0);
        view.FitAll = false;
        EXPECT_EQ(Place(length, view), (Part{1, length, length}));
        EXPECT_EQ(view.XScale, 100.0 / length);
    }
}

TEST(PlaceWaveView, DrawsTenAndElevenSamplesWithTheirLength)
{
    for (const std::int32_t length : {10, 11}) {
        WaveView view;
        view.FitAll = true;
        EXPECT_EQ(Place(length, view), (Part{1, length, length}));
        EXPECT_EQ(view.XScale, 100.0 / length);
    }
}

TEST(PlaceWaveView, LeavesTheViewOfAnEmptyWaveAsItIs)
{
    WaveView view;
    view.FitAll = true;
    EXPECT_EQ(Place(0, view), (Part{1, 0, 0}));
    EXPECT_EQ(view.XScale, 1.0);
}

TEST(PlaceWaveView, ScalesTheUnitsOfTheBitsToTheHeight)
{
    WaveView view;
    PlaceWaveView(MonoOf({0, 0}), {101, 65}, view);
    EXPECT_EQ(view.YScale, 64.0 / 65536);
    EXPECT_EQ(view.CentreY, 32.5);
    PlaceWaveView(MonoOf({0, 0}, 8), {101, 65}, view);
    EXPECT_EQ(view.YScale, 64.0 / 256);
    PlaceWaveView(MonoOf({0, 0}), {101, 1}, view);
    EXPECT_EQ(view.YScale, 0.000001);
}

TEST(PlaceWaveView, DividesByTheSpanInAPictureWithoutWidth)
{
    WaveView view;
    PlaceWaveView(SilenceOf(100), {0, 0}, view);
    EXPECT_EQ(view.XScale, 0.01);
}

TEST(PlaceWaveView, DropsASelectionBeyondTheWave)
{
    WaveView view;
    view.SelectionStart = 50;
    view.SelectionEnd = 101;
    Place(101, view);
    EXPECT_EQ(view.SelectionStart, 50);
    Place(100, view);
    EXPECT_EQ(view.SelectionStart, 0);
    EXPECT_EQ(view.SelectionEnd, 0);
    view.SelectionStart = 101;
    view.SelectionEnd = 50;
    Place(100, view);
    EXPECT_EQ(view.SelectionStart, 0);
    EXPECT_EQ(view.SelectionEnd, 0);
}

TEST(PlaceWaveView, KeepsThePlacesOfTheLongestWave)
{
    WaveView view;
    view.First = 2000000000;
    view.Span = 2000000000;
    WaveData wave;
    wave.Length = 2147483647;
    EXPECT_EQ(PlaceWaveView(wave, kPic, view), 2147483647);
    EXPECT_EQ(view.First, 147483647);
}

TEST(WaveStep, IsAPixelsSamplesRoundedHalfToEven)
{
    WaveView view;
    const auto step = [&view](double scale) {
        view.XScale = scale;
        return WaveStep(view);
    };
    EXPECT_EQ(step(4.0), 1);
    EXPECT_EQ(step(1.0), 1);
    EXPECT_EQ(step(0.4), 2);
    EXPECT_EQ(step(1 / 3.5), 4);
    EXPECT_EQ(step(0.01), 100);
}

TEST(SampleOfPixel, RoundsHalfToEvenAndStaysInTheWave)
{
    WaveView view;
    view.First = 10;
    view.XScale = 2;
    EXPECT_EQ(SampleOfPixel(view, 0, 100), 10);
    EXPECT_EQ(SampleOfPixel(view, 1, 100), 10); // 10.5
    EXPECT_EQ(SampleOfPixel(view, 3, 100), 12); // 11.5
    EXPECT_EQ(SampleOfPixel(view, 4, 100), 12);
    EXPECT_EQ(SampleOfPixel(view, 1000, 100), 100);
    EXPECT_EQ(SampleOfPixel(view, -1000, 100), 1);
    EXPECT_EQ(SampleOfPixel(view, 3, 0), 0);
}

TEST(PixelOfSample, CountsFromTheFirstSampleInView)
{
    WaveView view;
    view.First = 10;
    view.XScale = 0.5;
    EXPECT_EQ(PixelOfSample(view, 10), 0.0);
    EXPECT_EQ(PixelOfSample(view, 15), 2.5);
    EXPECT_EQ(PixelOfSample(view, 8), -1.0);
}

WaveView Zoomed(WaveZoom which, std::int32_t span, std::int32_t length, std::int32_t width, std::int32_t scroll = 0)
{
    WaveView view;
    view.First = 1;
    view.Span = span;
    ZoomWave(which, length, width, scroll, view);
    return view;
}

TEST(ZoomWave, DividesAndMultipliesTheSpanByOnePointTwo)
{
    EXPECT_EQ(Zoomed(WaveZoom::In, 1200, 5000, 100).Span, 1000);
    EXPECT_EQ(Zoomed(WaveZoom::In, 1001, 5000, 100).Span, 834);
    EXPECT_EQ(Zoomed(WaveZoom::Out, 1000, 5000, 100).Span, 1200);
}

TEST(ZoomWave, NeverShowsMoreThanTheWaveNorLessThanThePixels)
{
    EXPECT_EQ(Zoomed(WaveZoom::Out, 4500, 5000, 100).Span, 5000);
    EXPECT_EQ(Zoomed(WaveZoom::In, 110, 5000, 100).Span, 100);
    EXPECT_EQ(Zoomed(WaveZoom::In, 60, 50, 100).Span, 100); // drawing limits it to the length
    EXPECT_EQ(Zoomed(WaveZoom::Out, 2000000000, 2100000000, 100).Span, 2100000000);
}

TEST(ZoomWave, PlacesTheViewByTheScrollBar)
{
    EXPECT_EQ(Zoomed(WaveZoom::In, 1200, 5001, 100, 50).First, 2500);
    EXPECT_EQ(Zoomed(WaveZoom::In, 1200, 5001, 100, 0).First, 0); // drawing changes it to 1
}

// Intended: the same bar value moves the view again.
TEST(ScrollWave, CountsFromTheSampleThatIsFirstNow)
{
    WaveView view;
    ScrollWave(1001, 50, view);
    EXPECT_EQ(view.First, 500);
    ScrollWave(1001, 50, view);
    EXPECT_EQ(view.First, 250); // 250.5
    ScrollWave(1001, 100, view);
    EXPECT_EQ(view.First, 751);
}

TEST(ScrollWave, CountsOneSampleAtLeast)
{
    WaveView view;
    view.First = 1;
    ScrollWave(0, 100, view);
    EXPECT_EQ(view.First, 1);
    ScrollWave(0, 50, view);
    EXPECT_EQ(view.First, 0);
}

TEST(PlayMarkerLeft, StandsOnTheSampleThatIsHeardOrOutOfSight)
{
    WaveView view;
    view.First = 100;
    view.XScale = 0.5;
    EXPECT_EQ(PlayMarkerLeft(view, 110, 60), 5);
    EXPECT_EQ(PlayMarkerLeft(view, 103, 60), 2);  // 1.5
    EXPECT_EQ(PlayMarkerLeft(view, 101, 60), -2); // 0.5
    EXPECT_EQ(PlayMarkerLeft(view, 102, 60), 1);
    EXPECT_EQ(PlayMarkerLeft(view, 218, 60), 59);
    EXPECT_EQ(PlayMarkerLeft(view, 220, 60), -2);
    EXPECT_EQ(PlayMarkerLeft(view, 0, 60), -2);
}

} // namespace
} // namespace sprout
