// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "ui/rules/Box.h"

namespace sprout {

/// Size of the pictures: the screen on which the windows are shown.
inline constexpr BoxSize kSlideSize{780, 540};

/// Side of the hand's picture, and where its finger points.
inline constexpr int kHandSide = 56;
inline constexpr int kFingerX = 17;
inline constexpr int kFingerY = 4;

/// A hand whose finger points at a place.
struct HandPlace {
    Box box;
    bool isMirrored = false;   ///< left and right
    bool isUpsideDown = false; ///< it comes from above
};

/// Places the hand, inside the picture.
[[nodiscard]] HandPlace PlaceHand(int x, int y);

/// Places a bubble of this size as close to a place as possible, without touching it or any of `free`; it makes a
/// detour to leave `others` uncovered. All lie inside the picture; if there is no room, the bubble covers as little as
/// possible. pointsAt: without a size, it may be covered.
[[nodiscard]] Box PlaceBubble(const BoxSize& bubble, const Box& pointsAt, std::span<const Box> free,
                              std::span<const Box> others);

/// The point of a box that is closest to a point.
struct SlidePoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const SlidePoint&, const SlidePoint&) = default;
};
[[nodiscard]] SlidePoint ClosestPoint(const Box& box, SlidePoint point);

} // namespace sprout
