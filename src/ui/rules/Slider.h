// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// A slot with a pointer that stands for a percentage, in pixels. The pointer's left edge is not rounded, so converting
/// a percentage to a position and back is exact.
struct Slider {
    double slotLeft = 0;
    double slotWidth = 0;
    double pointerWidth = 0; ///< below `slotWidth`
    std::int32_t lowest = 0; ///< percentage at the slot's left end
    std::int32_t highest = 100;

    /// Left edge of the pointer at a percentage.
    [[nodiscard]] double LeftOf(std::int32_t percent) const;

    /// Percentage for a left edge, `lowest` to `highest`.
    [[nodiscard]] std::int32_t PercentAt(double left) const;

    /// Left edge after a drag from `downX` inside the pointer to `x` inside it; stays in the slot.
    [[nodiscard]] double Dragged(double left, double x, std::int32_t downX) const;
};

} // namespace sprout
