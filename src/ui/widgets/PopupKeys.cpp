// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/PopupKeys.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace sprout {

namespace {

bool ClosesTheList(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
    case Qt::Key_F4:
        return true;
    default:
        return event.key() == Qt::Key_Down && event.modifiers() == Qt::AltModifier;
    }
}

/// Qt's own filter of the list acts during the shortcut search; this delays it until the key itself arrives.
class ClosingKeys : public QObject {
public:
    explicit ClosingKeys(QAbstractItemView& list) : QObject(&list) { list.installEventFilter(this); }

    bool eventFilter(QObject* list, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
            return false;
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (!ClosesTheList(key))
            return false;
        event->accept();
        if (event->type() == QEvent::KeyPress) {
            QKeyEvent closing(QEvent::ShortcutOverride, key.key(), key.modifiers());
            list->parent()->eventFilter(list, &closing);
        }
        return true;
    }
};

} // namespace

void KeepClosingKeys(QComboBox& box)
{
    new ClosingKeys(*box.view());
}

} // namespace sprout
