// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveView.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"

namespace sprout {

namespace {

constexpr std::int32_t kLeastSpan = 10;
constexpr double kLeastYScale = 0.000001;
constexpr double kUnitsOf16Bits = 65536;
constexpr double kUnitsOf8Bits = 256;
constexpr double kZoomFactor = 1.2;

/// The rounded value, clamped to a range; `high` if it is below `low`.
std::int32_t RoundedWithin(double value, std::int32_t low, std::int32_t high)
{
    return RoundHalfEven(std::min(std::max(value, static_cast<double>(low)), static_cast<double>(high)));
}

void PlaceSpan(std::int32_t length, WaveView& view)
{
    if (view.FitAll || view.Span == 0)
        view.Span = length;
    if (view.First == 0)
        view.First = 1;
    if (view.Span > length) {
        view.Span = length;
        view.First = 1;
    } else if (view.Span < kLeastSpan) {
        view.Span = kLeastSpan;
    }
    if (static_cast<std::int64_t>(view.First) + view.Span > length)
        view.First = length - view.Span;
    view.First = std::max(view.First, 1);
}

void PlaceScales(const WaveData& wave, WavePicSize size, WaveView& view)
{
    view.CentreY = size.Height / 2.0;
    view.YScale = std::max((size.Height - 1) / (wave.Bits == 8 ? kUnitsOf8Bits : kUnitsOf16Bits), kLeastYScale);
    view.XScale = (std::max(size.Width, 2) - 1.0) / view.Span;
}

} // namespace

std::int32_t PlaceWaveView(const WaveData& wave, WavePicSize size, WaveView& view)
{
    if (wave.Length < 1)
        return 0;
    PlaceSpan(wave.Length, view);
    PlaceScales(wave, size, view);
    if (view.SelectionStart > wave.Length || view.SelectionEnd > wave.Length)
        view.SelectionStart = view.SelectionEnd = 0;
    return static_cast<std::int32_t>(std::min<std::int64_t>(std::int64_t{view.First} + view.Span, wave.Length));
}

std::int32_t WaveStep(const WaveView& view)
{
    return RoundHalfEven(std::max(1 / view.XScale, 1.0));
}

std::int32_t SampleOfPixel(const WaveView& view, double x, std::int32_t length)
{
    return RoundedWithin(x / view.XScale + view.First, 1, length);
}

void ZoomWave(WaveZoom which, std::int32_t length, std::int32_t width, std::int32_t scroll, WaveView& view)
{
    const double span = which == WaveZoom::In ? view.Span / kZoomFactor : view.Span * kZoomFactor;
    view.Span = std::max(RoundedWithin(span, 0, length), width);
    ScrollWave(length, scroll, view);
}

void ScrollWave(std::int32_t length, std::int32_t scroll, WaveView& view)
{
    const std::int32_t samples = std::max(length - view.First, 1);
    view.First = RoundHalfEven(scroll / 100.0 * samples);
}

std::int32_t PlayMarkerLeft(const WaveView& view, std::int32_t position, std::int32_t width)
{
    const double x = std::nearbyint(PixelOfSample(view, position));
    return x >= 1 && x < width ? static_cast<std::int32_t>(x) : kMarkerOutOfSight;
}

} // namespace sprout
