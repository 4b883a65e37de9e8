// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>

#include "ui/rules/Box.h"

namespace sprout {

/// A point in pixels of a slide's picture or of its place in the window.
struct DemoPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const DemoPoint&, const DemoPoint&) = default;
};

/// The active rectangle of a slide: its corners in pixels of the picture, all inclusive. Empty at first.
struct DemoRectangle {
    std::int64_t left = 0;
    std::int64_t top = 0;
    std::int64_t right = -1;
    std::int64_t bottom = -1;

    [[nodiscard]] constexpr bool Contains(DemoPoint point) const
    {
        return point.x >= left && point.x <= right && point.y >= top && point.y <= bottom;
    }

    /// True if it has a point in a picture of this size.
    [[nodiscard]] constexpr bool Reaches(const BoxSize& picture) const
    {
        return std::max<std::int64_t>(left, 0) <= std::min<std::int64_t>(right, picture.width - 1) &&
               std::max<std::int64_t>(top, 0) <= std::min<std::int64_t>(bottom, picture.height - 1);
    }

    friend bool operator==(const DemoRectangle&, const DemoRectangle&) = default;
};

} // namespace sprout
