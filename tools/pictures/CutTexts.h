// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

namespace sprout {

/// The texts that a window draws but that do not fit: those that end in an ellipsis, and those that reach over the edge
/// of their widget. Each once, in the order of drawing.
[[nodiscard]] QStringList CutTexts(QWidget& window);

} // namespace sprout
