// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the main window with a song, as it looks on a screen of 1280 x 800, into a picture file. Returns whether that
/// worked; a failure is told on the error stream.
[[nodiscard]] bool DrawMainWindow(const QString& songPath, const QString& picturePath);

/// Draws the main window in its sizes and states with a song's tracks into a folder.
void DrawMainWindowSheets(const QString& songPath, const QString& folder);

} // namespace sprout
