// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QWidget>

#include "ui/widgets/DesktopPlacesWindows.h"

namespace sprout {

/// The size of the screen without the desktop's panels, for a window that fits itself to it.
///
/// A desktop that places windows tells nobody about its panels, but it leaves room for them when it maximises a window:
/// if the one that `window` belongs to in the end is maximised, its size counts.
[[nodiscard]] QSize FreeRoom(const QWidget& window, bool desktopPlaces = DesktopPlacesWindows());

} // namespace sprout
