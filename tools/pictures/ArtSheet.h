// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws a sheet of all tiles and pictures into a folder, in the sizes in which the program shows them.
void DrawArtSheet(const QString& folder);

} // namespace sprout
