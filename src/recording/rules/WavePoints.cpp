// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/WavePoints.h"

#include <algorithm>

#include "base/Numbers.h"

namespace sprout {

namespace {

void MarkSelection(const WaveView& view, std::int32_t last, WaveDrawing& drawing)
{
    const std::int32_t start = view.SelectionStart;
    const std::int32_t end = view.SelectionEnd;
    if (start > last || end < view.First || (start == 0 && end == 0))
        return;
    drawing.Mark = start == end ? SelectionMark::Line : SelectionMark::Box;
    drawing.MarkLeft = PixelOfSample(view, std::max(start, view.First));
    drawing.MarkRight = PixelOfSample(view, std::min(end, last));
}

std::vector<WavePoint> PassOf(const Channel& channel, const WaveView& view, std::int32_t last)
{
    const std::int32_t step = WaveStep(view);
    std::vector<WavePoint> points;
    points.reserve(static_cast<std::size_t>((last - view.First) / step) + 1);
    for (std::int64_t sample = view.First; sample <= last; sample += step) {
        const auto number = static_cast<std::int32_t>(sample);
        points.push_back({PixelOfSample(view, number), view.CentreY - channel[number] * view.YScale});
    }
    return points;
}

} // namespace

WaveDrawing DrawWaveform(const WaveData& wave, WavePicSize size, WaveView& view)
{
    WaveDrawing drawing;
    drawing.Size = size;
    drawing.HasWave = wave.Length > 0;
    if (!drawing.HasWave)
        return drawing;
    const std::int32_t last = PlaceWaveView(wave, size, view);
    MarkSelection(view, last, drawing);
    drawing.CentreY = view.CentreY;
    drawing.Left = PassOf(wave.WavL, view, last);
    if (wave.Channels == 2)
        drawing.Right = PassOf(wave.WavR, view, last);
    return drawing;
}

std::int32_t DevicePixel(double place, double ratio)
{
    return RoundHalfEven(place * ratio);
}

} // namespace sprout
