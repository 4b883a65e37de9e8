// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/HeldTimers.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <vector>

namespace sprout {

HeldTimers::HeldTimers()
{
    qApp->installEventFilter(this);
}

int HeldTimers::Tick(const QString& name, const QList<QObject*>& roots)
{
    QList<QObject*> all = roots;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (!window->parent())
            all.append(window);
    std::vector<QPointer<QTimer>> timers;
    for (const QObject* root : all)
        for (QTimer* timer : root->findChildren<QTimer*>(name))
            if (timer->isActive())
                timers.emplace_back(timer);
    for (const QPointer<QTimer>& timer : timers) {
        if (!timer)
            continue;
        if (timer->isSingleShot())
            timer->stop();
        QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
    }
    return static_cast<int>(timers.size());
}

bool HeldTimers::eventFilter(QObject* watched, QEvent* event)
{
    return event->type() == QEvent::Timer && (qobject_cast<QTimer*>(watched) || watched->inherits("QSingleShotTimer"));
}

} // namespace sprout
