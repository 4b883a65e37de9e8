// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace sprout {

/// Draws a sheet of messages, inputs and signs of work into a folder.
void DrawFormSheet(const QString& folder);

} // namespace sprout
