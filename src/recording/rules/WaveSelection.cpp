// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WaveSelection.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "base/Numbers.h"

namespace sprout {

namespace {

constexpr double kEdgePixels = 3;

double AtEdge(double x, std::int32_t width)
{
    if (x < kEdgePixels)
        return 0;
    return x > width - kEdgePixels ? width : x;
}

std::int32_t PixelWithin(double x, std::int32_t width)
{
    return RoundHalfEven(std::clamp(x, 0.0, static_cast<double>(width)));
}

std::int64_t SamplesToMove(WaveMove move, const WaveView& view)
{
    const std::int64_t pixel = WaveStep(view);
    switch (move) {
    case WaveMove::Left:
        return -pixel;
    case WaveMove::Right:
        return pixel;
    case WaveMove::FarLeft:
        return -kFarPixels * pixel;
    case WaveMove::FarRight:
        return kFarPixels * pixel;
    default:
        return 0;
    }
}

std::int32_t MovedPlace(WaveMove move, std::int32_t place, std::int32_t length, const WaveView& view)
{
    if (move == WaveMove::Home)
        return 1;
    if (move == WaveMove::End)
        return length;
    const std::int64_t moved = place + SamplesToMove(move, view);
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(moved, 1, length));
}

void BringIntoView(std::int32_t sample, std::int32_t length, WaveView& view)
{
    const std::int64_t last = std::min<std::int64_t>(std::int64_t{view.First} + view.Span, length);
    if (sample < view.First || sample > last)
        view.First = std::max(sample - view.Span / 2, 1);
}

std::string TenthsText(std::int32_t frames, std::int32_t rate)
{
    const std::int32_t tenths = rate > 0 ? RoundHalfEven(10.0 * frames / rate) : 0;
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

} // namespace

bool SelectionIsValid(const WaveView& view, std::int32_t length)
{
    return view.SelectionEnd > view.SelectionStart && view.SelectionEnd <= length && view.SelectionStart >= 1 &&
           length > 0;
}

WaveDrag PressWave(double x, std::int32_t width, std::int32_t length, WaveView& view)
{
    const double place = AtEdge(x, width);
    view.SelectionStart = view.SelectionEnd = SampleOfPixel(view, place, length);
    return {RoundHalfEven(place)};
}

WaveBand PressedBand(double x, std::int32_t width)
{
    return {AtEdge(x, width), 1};
}

WaveBand DraggedBand(const WaveDrag& drag, double x, std::int32_t width)
{
    const std::int32_t place = PixelWithin(x, width);
    return {static_cast<double>(std::min(drag.Anchor, place)), std::max(std::abs(place - drag.Anchor), 1)};
}

void ReleaseWave(double x, std::int32_t width, std::int32_t length, WaveView& view)
{
    const std::int32_t sample = SampleOfPixel(view, AtEdge(x, width), length);
    if (sample <= view.SelectionStart)
        view.SelectionEnd = std::exchange(view.SelectionStart, sample);
    else
        view.SelectionEnd = sample;
}

void MoveCursor(WaveMove move, WaveKeep keep, std::int32_t length, WaveCursor& cursor, WaveView& view)
{
    if (length < 1)
        return;
    if (cursor.Place < 1)
        cursor.Place = cursor.Other = std::clamp(view.First, 1, length);
    cursor.Place = MovedPlace(move, cursor.Place, length, view);
    if (keep == WaveKeep::Cursor)
        cursor.Other = cursor.Place;
    view.SelectionStart = std::min(cursor.Place, cursor.Other);
    view.SelectionEnd = std::max(cursor.Place, cursor.Other);
    BringIntoView(cursor.Place, length, view);
}

void SelectWave(std::int32_t length, WaveCursor& cursor, WaveView& view)
{
    if (length < 1)
        return;
    cursor = {length, 1};
    view.SelectionStart = 1;
    view.SelectionEnd = length;
}

Words SpokenSelection(const WaveView& view, std::int32_t rate)
{
    if (view.SelectionStart < 1)
        return Words::Text("Nothing is selected");
    const std::string from = TenthsText(view.SelectionStart - 1, rate);
    if (view.SelectionStart == view.SelectionEnd)
        return Words::Text("%1 seconds", from);
    return Words::Text("%1 to %2 seconds", from, TenthsText(view.SelectionEnd, rate));
}

} // namespace sprout
