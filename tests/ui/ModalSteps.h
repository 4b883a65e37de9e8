// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QTimer>

#include <functional>

#include "ui/forms/BandedForm.h"

namespace sprout {

/// Runs `steps` with the next modal form once it is shown.
inline void WithNextForm(std::function<void(BandedForm&)> steps)
{
    QTimer::singleShot(0, qApp, [steps = std::move(steps)] {
        auto* form = qobject_cast<BandedForm*>(QApplication::activeModalWidget());
        if (form)
            steps(*form);
    });
}

/// Sends the repeated event of a key that is held down.
inline void RepeatKey(QWidget& control, Qt::Key key)
{
    QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(&control, &again);
}

/// Clicks a control in a window by its name.
inline void Click(QWidget& window, const char* name)
{
    QTest::mouseClick(window.findChild<QWidget*>(QString::fromLatin1(name)), Qt::LeftButton);
}

} // namespace sprout
