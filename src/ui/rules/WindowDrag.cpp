// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/WindowDrag.h"

namespace sprout {

WindowDrag WindowDragAt(bool desktopPlaces, std::int32_t awayPx, std::int32_t dragDistancePx)
{
    if (!desktopPlaces)
        return WindowDrag::MoveItself;
    // The desktop takes the pointer over. Asked at the press, it may hold the window to the pointer for good where the
    // button is up before the question arrives, and a double click may lose its second press.
    return awayPx < dragDistancePx ? WindowDrag::Wait : WindowDrag::AskDesktop;
}

} // namespace sprout
