// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "recording/rules/WaveView.h"

namespace sprout {

/// Whether there is a selection that can be edited: two samples at least, all of them in a wave of this length.
[[nodiscard]] bool SelectionIsValid(const WaveView& view, std::int32_t length);

/// A selection as it is dragged: from the sample where the mouse went down, and where the band stands meanwhile.
struct WaveDrag {
    std::int32_t Anchor = 0; ///< pixel at which it began
};

/// The thin band over the picture while the mouse is down, in pixels.
struct WaveBand {
    double Left = 0;
    std::int32_t Width = 1;
};

// The mouse at `x` pixels, of a picture `width` wide. Close to an edge it counts as on the edge, so that the first and
// the last sample are easy to catch.

/// Mouse down: the one sample there is selected. Returns where the drag begins.
WaveDrag PressWave(double x, std::int32_t width, std::int32_t length, WaveView& view);

/// The band of a press, one pixel wide, and of a drag that has come to `x`.
[[nodiscard]] WaveBand PressedBand(double x, std::int32_t width);
[[nodiscard]] WaveBand DraggedBand(const WaveDrag& drag, double x, std::int32_t width);

/// Mouse up: selects what lies between, to the left as to the right.
void ReleaseWave(double x, std::int32_t width, std::int32_t length, WaveView& view);

/// The place that keys move, and the other end of what they select. 0 as long as there is none.
struct WaveCursor {
    std::int32_t Place = 0;
    std::int32_t Other = 0;
};

enum class WaveMove { Left, Right, FarLeft, FarRight, Home, End };
enum class WaveKeep { Cursor, Selection };

/// Moves the cursor by a pixel, by `kFarPixels`, or to an end of the wave, and brings it into view. keep: `Selection`
/// selects from where the cursor stood.
inline constexpr std::int32_t kFarPixels = 20;
void MoveCursor(WaveMove move, WaveKeep keep, std::int32_t length, WaveCursor& cursor, WaveView& view);

/// Selects the whole wave.
void SelectWave(std::int32_t length, WaveCursor& cursor, WaveView& view);

/// The selection in words, "1.2 to 3.4 seconds"; a single sample is "1.2 seconds", none "Nothing is selected". rate:
/// frames a second.
[[nodiscard]] std::string SpokenSelection(const WaveView& view, std::int32_t rate);

} // namespace sprout
