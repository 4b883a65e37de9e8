// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// What a pointer that holds a window does when it moves.
enum class WindowDrag { Wait, AskDesktop, MoveItself };

/// desktopPlaces: whether only the desktop can move the window. awayPx: how far the pointer is from where it was
/// pressed, along both axes together. dragDistancePx: how far it goes before a press is a drag.
[[nodiscard]] WindowDrag WindowDragAt(bool desktopPlaces, std::int32_t awayPx, std::int32_t dragDistancePx);

} // namespace sprout
