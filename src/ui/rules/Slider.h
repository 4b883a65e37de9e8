// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// A slot with a pointer that stands for a percentage, in pixels. The pointer's left edge is kept unrounded, so that a
/// percentage comes back from its place as it was.
struct Slider {
    double slotLeft = 0;
    double slotWidth = 0;
    double pointerWidth = 0; ///< below `slotWidth`
    std::int32_t lowest = 0; ///< percentage at the slot's left end
    std::int32_t highest = 100;

    /// Left edge of the pointer at a percentage.
    [[nodiscard]] double LeftOf(std::int32_t percent) const;

    /// Percentage at a left edge, `lowest` to `highest`.
    [[nodiscard]] std::int32_t PercentAt(double left) const;

    /// Left edge after a drag that began at `downX` of the pointer and has reached `x` of it; stays in the slot.
    [[nodiscard]] double Dragged(double left, double x, std::int32_t downX) const;
};

} // namespace sprout
