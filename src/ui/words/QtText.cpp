// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/words/QtText.h"

#include <QCoreApplication>

namespace sprout {

QString QtText(const Words& words)
{
    return QtText(std::string_view(ShownText(words)));
}

std::string ShownText(const Words& words)
{
    return words.Filled(
        [](const char* pattern) { return QCoreApplication::translate(kWordsContext, pattern).toStdString(); });
}

} // namespace sprout
