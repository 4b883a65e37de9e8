// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the recording window into a folder, in all states of a capture.
void DrawRecordingSheets(const QString& folder);

} // namespace sprout
