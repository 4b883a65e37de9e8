// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the tune window on small and large screens, without tunes, with those of the library beside the program and
/// with 200, its menu and the form that asks for a tune's name, and saves the pictures in `folder`.
void DrawTuneWindowSheets(const QString& folder);

} // namespace sprout
