// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// True for the black keys of an octave. key: 1 to 12, from the lowest.
[[nodiscard]] inline bool IsBlackKey(std::int32_t key)
{
    return key == 2 || key == 4 || key == 7 || key == 9 || key == 11;
}

} // namespace sprout
