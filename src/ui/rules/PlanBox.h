// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// The size of a control, in logical pixels.
struct PlanSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const PlanSize&, const PlanSize&) = default;
};

/// A rectangle in a window, in logical pixels.
struct PlanBox {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] int Right() const { return x + width; }
    [[nodiscard]] int Bottom() const { return y + height; }
    friend bool operator==(const PlanBox&, const PlanBox&) = default;
};

} // namespace sprout
