// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "base/WaveData.h"
#include "recording/rules/WaveView.h"

namespace sprout {

/// A point of a pass, in logical pixels from the picture's top left, not rounded.
struct WavePoint {
    double X = 0;
    double Y = 0;

    friend bool operator==(const WavePoint&, const WavePoint&) = default;
};

/// What shows the selection: a dashed line for a single sample, a box for more.
enum class SelectionMark { None, Line, Box };

/// All that a picture of a wave shows, in the order in which it is drawn, without a copy of the samples. Each point of
/// a pass is joined with the one before by a line that has both its ends; the first point is a line of length 0.
struct WaveDrawing {
    WavePicSize Size;
    bool HasWave = false; ///< otherwise the picture is its background alone
    SelectionMark Mark = SelectionMark::None;
    double MarkLeft = 0;  ///< x of the line, or of the box's left edge
    double MarkRight = 0; ///< x of the box's right edge, which belongs to it
    double CentreY = 0;   ///< row of the centre line
    std::vector<WavePoint> Left;
    std::vector<WavePoint> Right; ///< drawn over the left pass; empty for one channel
};

/// Places the view for a picture and tells what the picture shows. One sample is looked at for each point.
[[nodiscard]] WaveDrawing DrawWaveform(const WaveData& wave, WavePicSize size, WaveView& view);

/// The device pixel at a place in logical pixels: rounded to nearest, halves to the even number. ratio: device pixels a
/// logical one.
[[nodiscard]] std::int32_t DevicePixel(double place, double ratio);

} // namespace sprout
