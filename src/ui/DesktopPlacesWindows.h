// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGuiApplication>
#include <QString>

namespace sprout {

/// On Wayland a window can neither place nor drag itself: the desktop does it when it is asked.
[[nodiscard]] inline bool DesktopPlacesWindows()
{
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

} // namespace sprout
