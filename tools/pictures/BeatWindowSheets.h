// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the beat window into a folder: without a beat, with the beats of the installed library, if it is beside the
/// program, and with 300 beats.
void DrawBeatWindowSheets(const QString& folder);

} // namespace sprout
