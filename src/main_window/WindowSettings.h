// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/DesktopPlacesWindows.h"

class QWidget;

namespace sprout {

// The main window's place and state in the settings file, section `MainWindow`.

/// Gives the window the stored place on its screen. It opens maximised if it was closed so, or if nothing is stored.
void TakePlaceFromSettings(QWidget& window);

/// Stores the window's state, and its place unless it is minimised or maximised; of the place only the size if the
/// desktop places windows, since the window does not know the rest.
void WritePlaceToSettings(const QWidget& window, bool desktopPlaces = DesktopPlacesWindows());

} // namespace sprout
