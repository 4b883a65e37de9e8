// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws two sheets into a folder, with all faces of each button: those with a glyph, and those with a word.
void DrawButtonSheets(const QString& folder);

} // namespace sprout
