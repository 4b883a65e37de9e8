// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the step editor with tunes of 2 to 64 steps, bars of all lengths, marks of missing beats and of the playing
/// step, and its menu, and saves the pictures in `folder`.
void DrawStepEditorSheets(const QString& folder);

} // namespace sprout
