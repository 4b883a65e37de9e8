// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/QtTip.h"

#include <QTextDocument>

#include "ui/words/QtText.h"

namespace sprout {

QString QtTip(std::string_view name)
{
    const QString text = QtText(name);
    return Qt::mightBeRichText(text) ? QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()) : text;
}

} // namespace sprout
