// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "base/Words.h"
#include "recording/rules/WaveView.h"

namespace sprout {

/// Whether there is a selection that can be edited: at least two samples, all within a wave of this length.
[[nodiscard]] bool SelectionIsValid(const WaveView& view, std::int32_t length);

/// A drag in progress: where the mouse went down.
struct WaveDrag {
    std::int32_t Anchor = 0; ///< pixel at which it began
};

/// The thin band over the picture while the mouse is down, in pixels.
struct WaveBand {
    double Left = 0;
    std::int32_t Width = 1;
};

// The mouse at `x` pixels in a picture `width` wide. Close to an edge it counts as on the edge, which makes the first
// and the last sample easy to catch.

/// Mouse down: selects the one sample there. Returns where the drag begins.
WaveDrag PressWave(double x, std::int32_t width, std::int32_t length, WaveView& view);

/// The band of a press, one pixel wide, and of a drag that has reached `x`.
[[nodiscard]] WaveBand PressedBand(double x, std::int32_t width);
[[nodiscard]] WaveBand DraggedBand(const WaveDrag& drag, double x, std::int32_t width);

/// Mouse up: selects what lies between, in either direction.
void ReleaseWave(double x, std::int32_t width, std::int32_t length, WaveView& view);

/// The position that keys move, and the other end of the key selection. 0 while there is none.
struct WaveCursor {
    std::int32_t Place = 0;
    std::int32_t Other = 0;
};

enum class WaveMove { Left, Right, FarLeft, FarRight, Home, End };
enum class WaveKeep { Cursor, Selection };

/// Moves the cursor by a pixel, by `kFarPixels`, or to an end of the wave, and scrolls it into view. keep: `Selection`
/// selects from the cursor's old position.
inline constexpr std::int32_t kFarPixels = 20;
void MoveCursor(WaveMove move, WaveKeep keep, std::int32_t length, WaveCursor& cursor, WaveView& view);

/// Selects the whole wave.
void SelectWave(std::int32_t length, WaveCursor& cursor, WaveView& view);

/// The selection in words, "1.2 to 3.4 seconds"; "1.2 seconds" for a single sample, "Nothing is selected" for none.
/// rate: frames per second.
[[nodiscard]] Words SpokenSelection(const WaveView& view, std::int32_t rate);

} // namespace sprout
