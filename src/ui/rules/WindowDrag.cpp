// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/WindowDrag.h"

namespace sprout {

WindowDrag WindowDragAt(bool desktopPlaces, std::int32_t awayPx, std::int32_t dragDistancePx)
{
    if (!desktopPlaces)
        return WindowDrag::MoveItself;
    // The desktop takes over the pointer. If it is asked at the press, the window may stick to the pointer when the
    // button is released before the request arrives, and a double click may lose its second press.
    return awayPx < dragDistancePx ? WindowDrag::Wait : WindowDrag::AskDesktop;
}

} // namespace sprout
