// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// The size of a control, in logical pixels.
struct BoxSize {
    int width = 0;
    int height = 0;
    friend bool operator==(const BoxSize&, const BoxSize&) = default;
};

/// A rectangle in a window, in logical pixels.
struct Box {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] int Right() const { return left + width; }
    [[nodiscard]] int Bottom() const { return top + height; }
    friend bool operator==(const Box&, const Box&) = default;
};

} // namespace sprout
