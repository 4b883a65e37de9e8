// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/NamesMenu.h"

#include "ui/words/QtText.h"

namespace sprout {

namespace {

/// The name as it is: a menu would underline the letter behind "&" and put what follows a tab into a column of its own.
QString Caption(const std::string& name)
{
    return QtText(std::string_view(name)).replace(u'&', QStringLiteral("&&")).replace(u'\t', u' ');
}

} // namespace

NamesMenu::NamesMenu(const char* name, const char* entries, QWidget* parent)
    : QMenu(parent), entryName(QString::fromLatin1(entries))
{
    setObjectName(QString::fromLatin1(name));
}

std::optional<std::size_t> NamesMenu::Choose(const std::vector<std::string>& names, QPoint at)
{
    clear();
    for (std::size_t i = 0; i < names.size(); ++i) {
        QAction* const entry = addAction(Caption(names[i]));
        entry->setObjectName(entryName + QString::number(i + 1));
        entry->setData(static_cast<qulonglong>(i));
    }
    const QAction* const chosen = exec(at);
    return chosen ? std::optional(static_cast<std::size_t>(chosen->data().toULongLong())) : std::nullopt;
}

} // namespace sprout
