// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "main_window/rules/WindowPlace.h"

namespace sprout {

/// The edges of a window that resize it; a corner is two of them.
struct WindowEdges {
    bool left = false;
    bool top = false;
    bool right = false;
    bool bottom = false;
    friend bool operator==(const WindowEdges&, const WindowEdges&) = default;
};

/// The four sides and the four corners.
inline constexpr std::array<WindowEdges, 8> kWindowGrips{{{true, false, false, false},
                                                          {false, true, false, false},
                                                          {false, false, true, false},
                                                          {false, false, false, true},
                                                          {true, true, false, false},
                                                          {false, true, true, false},
                                                          {true, false, false, true},
                                                          {false, false, true, true}}};

/// The minimum window size when dragging, in logical pixels.
inline constexpr std::int32_t kLeastWindowWidth = 533;
inline constexpr std::int32_t kLeastWindowHeight = 200;

/// Position of the grip for some edges of a window of this size: 6 px wide along the sides, 10 px square at the
/// corners.
[[nodiscard]] Box GripPlace(const WindowEdges& edges, std::int32_t width, std::int32_t height);

/// The position of a window whose edges were dragged by (dx, dy) from their position in `start`. An edge stops at the
/// minimum window size; the other edges stay.
[[nodiscard]] Box DraggedByEdges(const Box& start, const WindowEdges& edges, std::int32_t dx, std::int32_t dy);

} // namespace sprout
