// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the audio editor into a folder, with nothing, a position and a range selected.
void DrawEditorSheets(const QString& folder);

} // namespace sprout
