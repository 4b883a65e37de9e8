// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/GroundWatch.h"

#include <QMouseEvent>
#include <QWidget>

namespace sprout {

void GroundWatch::Watch(QWidget& ground)
{
    ground.installEventFilter(this);
}

bool GroundWatch::eventFilter(QObject* watched, QEvent* event)
{
    // Qt passes on moves that a child ignores; only a move over the background itself counts.
    if (event->type() == QEvent::MouseMove &&
        !static_cast<QWidget*>(watched)->childAt(static_cast<QMouseEvent*>(event)->position().toPoint()))
        Q_EMIT MovedOver();
    return QObject::eventFilter(watched, event);
}

} // namespace sprout
