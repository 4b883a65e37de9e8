// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTextDocument>

#include <string_view>

#include "ui/QtText.h"

namespace sprout {

/// The tool tip that shows a text letter by letter. Names come from files of strangers: what looks like marks of rich
/// text, which can hide words or name other files, is shown as it is written.
[[nodiscard]] inline QString PlainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()) : text;
}

[[nodiscard]] inline QString PlainToolTip(std::string_view text)
{
    return PlainToolTip(QtText(text));
}

} // namespace sprout
