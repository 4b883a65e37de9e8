// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>

namespace sprout {

/// The font, made smaller by whole pixels until `text` is at most `width` wide. As it is if that would take letters too
/// small to be read: such a text is to be cut.
[[nodiscard]] QFont FittingFont(const QFont& font, const QString& text, int width);

} // namespace sprout
