// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/SoundDrop.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QWidget>

namespace sprout {

SoundDrop::SoundDrop(QWidget* window) : QObject(window)
{
    window->setAcceptDrops(true);
    window->installEventFilter(this);
}

bool SoundDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragEnter) {
        auto* const enter = static_cast<QDragEnterEvent*>(event);
        if (enter->mimeData()->hasUrls() && !QApplication::activeModalWidget())
            enter->acceptProposedAction();
        return true;
    }
    if (event->type() == QEvent::Drop) {
        auto* const drop = static_cast<QDropEvent*>(event);
        drop->acceptProposedAction();
        QTimer::singleShot(0, this, [this, places = drop->mimeData()->urls()] { Q_EMIT Dropped(places); });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace sprout
