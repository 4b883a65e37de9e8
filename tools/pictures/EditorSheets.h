// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the audio editor with nothing, a place and a part selected, into a folder.
void DrawEditorSheets(const QString& folder);

} // namespace sprout
