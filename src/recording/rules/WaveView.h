// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/WaveData.h"

namespace sprout {

/// The scale width and height of the picture of a wave, in logical pixels.
struct WavePicSize {
    std::int32_t Width = 0;
    std::int32_t Height = 0;
};

/// Which part of a wave is in view, and which part is selected. Samples count from 1.
struct WaveView {
    std::int32_t First = 1;          ///< first sample in view
    std::int32_t Span = 0;           ///< samples in view
    bool FitAll = false;             ///< the next drawing shows the whole wave
    double XScale = 1.0;             ///< pixels per sample
    double YScale = 0;               ///< pixels per sample unit
    double CentreY = 0;              ///< row of the zero line
    std::int32_t SelectionStart = 0; ///< first selected sample, 0 if none
    std::int32_t SelectionEnd = 0;   ///< last selected sample, 0 if none
};

/// Fits a view to a wave and a picture at the start of each drawing: span, first sample, scales, and no selection
/// beyond the wave. A wave of length 0 leaves the view unchanged. size: a width below 2 counts as 2. Returns the last
/// sample in view, 0 for a wave of length 0.
///
/// A wave of fewer than 10 samples is drawn with a span of 10 the first time and with its own length from then on.
std::int32_t PlaceWaveView(const WaveData& wave, WavePicSize size, WaveView& view);

/// Samples from one drawn sample to the next, >= 1; those between are skipped.
[[nodiscard]] std::int32_t WaveStep(const WaveView& view);

/// Pixels from the left edge of the picture to a sample.
[[nodiscard]] inline double PixelOfSample(const WaveView& view, std::int32_t sample)
{
    return (static_cast<double>(sample) - view.First) * view.XScale;
}

/// The sample at `x` pixels, clamped to 1 to `length`; 0 if `length` is 0.
[[nodiscard]] std::int32_t SampleOfPixel(const WaveView& view, double x, std::int32_t length);

enum class WaveZoom { In = 0, Out = 1 };

/// Shows a sixth fewer or a fifth more samples, but never fewer than the picture has pixels. scroll: value of the
/// scroll bar, 0 to 100. The next drawing places the view.
void ZoomWave(WaveZoom which, std::int32_t length, std::int32_t width, std::int32_t scroll, WaveView& view);

/// Moves the view to the scroll bar's position. scroll: 0 to 100.
///
/// The 100 percent are counted from the first sample in view, not from the start of the wave. This is intended:
/// successive moves of the bar continue from the current view.
void ScrollWave(std::int32_t length, std::int32_t scroll, WaveView& view);

/// Left edge of the play marker for the current sample, `kMarkerOutOfSight` if it is not in the picture.
inline constexpr std::int32_t kMarkerOutOfSight = -2;
[[nodiscard]] std::int32_t PlayMarkerLeft(const WaveView& view, std::int32_t position, std::int32_t width);

} // namespace sprout
