// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the demo window on a slide whose rectangle pulses, on a last slide and on one that is larger than the screen
/// into a folder.
void DrawDemoSheets(const QString& folder);

} // namespace sprout
