// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "core/Song.h"

namespace sprout {

/// The tempo slider's slot and the pointer on it, in pixels. The pointer's left edge is kept unrounded, so that a tempo
/// comes back from its place as it was.
struct TempoSlider {
    double slotLeft = 0;
    double slotWidth = 0;
    double pointerWidth = 0; ///< below `slotWidth`

    /// Left edge of the pointer at a percentage.
    [[nodiscard]] double LeftOf(std::int32_t percent) const;

    /// Percentage at a left edge, 50 to 200.
    [[nodiscard]] std::int32_t PercentAt(double left) const;

    /// Left edge after a drag that began at `downX` of the pointer and has reached `x` of it; stays in the slot.
    [[nodiscard]] double Dragged(double left, double x, std::int32_t downX) const;
};

/// "100%".
[[nodiscard]] std::string TempoLabel(std::int32_t percent);

/// The whole grid's duration, "240 sec". A tempo of 0 has none and gives "0 sec".
[[nodiscard]] std::string DurationLabel(std::int32_t tempo);

/// Takes the tempo of a percentage. Nothing happens where the song has it already; else all renders are stale and the
/// shared song is changed. Returns whether it was taken.
bool SetTempoPercent(std::int32_t percent);

} // namespace sprout
