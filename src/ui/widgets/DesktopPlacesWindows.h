// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGuiApplication>
#include <QString>

namespace sprout {

/// On Wayland a window cannot place or drag itself: the desktop does it on request.
[[nodiscard]] inline bool DesktopPlacesWindows()
{
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

} // namespace sprout
