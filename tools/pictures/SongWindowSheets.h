// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the song window in its modes with few and many songs, the About box and the help book, into a folder.
void DrawSongWindowSheets(const QString& folder);

} // namespace sprout
