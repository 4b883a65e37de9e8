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

/// How the selection is shown: a dashed line for a single sample, a box for more.
enum class SelectionMark { None, Line, Box };

/// Everything that a picture of a wave shows, in drawing order, without a copy of the samples. Each point of a pass is
/// joined to the one before by a line that includes both ends; the first point is a line of length 0.
struct WaveDrawing {
    WavePicSize Size;
    bool HasWave = false; ///< otherwise the picture is only its background
    SelectionMark Mark = SelectionMark::None;
    double MarkLeft = 0;  ///< x of the line, or of the box's left edge
    double MarkRight = 0; ///< x of the box's right edge, inclusive
    double CentreY = 0;   ///< row of the centre line
    std::vector<WavePoint> Left;
    std::vector<WavePoint> Right; ///< drawn over the left pass; empty for one channel
};

/// Places the view for a picture and returns what the picture shows. Reads one sample per point.
[[nodiscard]] WaveDrawing DrawWaveform(const WaveData& wave, WavePicSize size, WaveView& view);

/// The device pixel for a position in logical pixels: rounded to nearest, halves to even. ratio: device pixels per
/// logical pixel.
[[nodiscard]] std::int32_t DevicePixel(double place, double ratio);

} // namespace sprout
