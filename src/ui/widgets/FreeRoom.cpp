// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/FreeRoom.h"

#include <QScreen>

namespace sprout {

QSize FreeRoom(const QWidget& window, bool desktopPlaces)
{
    const QSize room = window.screen()->availableGeometry().size();
    const QWidget* base = window.window();
    while (base->parentWidget())
        base = base->parentWidget()->window();
    const bool knowsRoom = desktopPlaces && base != &window && base->isMaximized();
    return knowsRoom ? room.boundedTo(base->size()) : room;
}

} // namespace sprout
