// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include <string>

#include "ui/help/HelpFrm.h"

namespace sprout {

/// The help book that the user sees; null if it is closed.
inline HelpFrm* OpenedHelp()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* help = qobject_cast<HelpFrm*>(window); help && help->isVisible())
            return help;
    return nullptr;
}

/// Runs `open` in front of `window`, closes the help that it opened, and returns the title of its page.
template <class Open>
std::string HelpPageOpenedBy(QWidget& window, const Open& open)
{
    QApplication::setActiveWindow(&window);
    open();
    HelpFrm* const help = OpenedHelp();
    if (!help)
        return "no help";
    const auto* pages = help->findChild<QListWidget*>(QStringLiteral("PagesLst"));
    const std::string title = pages->currentItem()->text().toStdString();
    delete help;
    return title;
}

} // namespace sprout
