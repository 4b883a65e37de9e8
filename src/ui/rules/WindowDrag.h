// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// What a pointer that holds a window does when it moves.
enum class WindowDrag { Wait, AskDesktop, MoveItself };

/// desktopPlaces: whether only the desktop can move the window. awayPx: distance of the pointer from the press, both
/// axes added. dragDistancePx: the distance that turns a press into a drag.
[[nodiscard]] WindowDrag WindowDragAt(bool desktopPlaces, std::int32_t awayPx, std::int32_t dragDistancePx);

} // namespace sprout
