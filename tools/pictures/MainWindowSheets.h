// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the main window with a song, as it looks on a screen of 1280 x 800, into a picture file. Returns true if that
/// worked; reports a failure on the error stream.
[[nodiscard]] bool DrawMainWindow(const QString& songPath, const QString& picturePath);

/// Draws the main window with a song's tracks in all sizes and states into a folder.
void DrawMainWindowSheets(const QString& songPath, const QString& folder);

} // namespace sprout
