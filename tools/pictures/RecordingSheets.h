// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws the recording window in the states of a capture into a folder.
void DrawRecordingSheets(const QString& folder);

} // namespace sprout
