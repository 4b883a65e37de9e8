// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

// What a cell of `Painted` holds: the number of the tool that wrote it, or 0 if none did. Only the brush's number
// counts as painted.
inline constexpr std::int32_t kPaintedCell = 1;
inline constexpr std::int32_t kErasedCell = 2;

/// The number of cells that the time band and the cell cursor show as a group.
inline constexpr std::int32_t kCellsOfAGroup = 8;

} // namespace sprout
