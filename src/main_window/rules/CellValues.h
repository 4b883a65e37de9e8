// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// The number of cells that the time band and the cell cursor show as a group.
inline constexpr std::int32_t kCellsOfAGroup = 8;

} // namespace sprout
