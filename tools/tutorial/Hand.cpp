// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/Hand.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QWindow>

#include "base/Errors.h"
#include "ui/forms/Dialogs.h"

namespace sprout {

namespace {

void SendKey(int key, const QString& text)
{
    QWidget* focused = FrontWindow().focusWidget();
    QWidget& target = focused ? *focused : FrontWindow();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&target, &event);
    }
}

} // namespace

QWidget& FrontWindow()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return *popup;
    if (QWidget* modal = QApplication::activeModalWidget())
        return *modal;
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
    for (QWidget* window : windows)
        if (window->property(kStandsBeside).toBool())
            return *window;
    for (QWidget* window : windows)
        if (window->objectName() == QStringLiteral("MainFrm"))
            return *window;
    throw RunTimeError(Words::AsIs("No window is open."));
}

void Hand::MoveTo(QPoint point)
{
    place = point;
    QCursor::setPos(point); // hints follow the pointer itself
    QCoreApplication::processEvents();
    Send(QEvent::MouseMove, Qt::NoButton);
}

void Hand::Press()
{
    held = Qt::LeftButton;
    Send(QEvent::MouseButtonPress, Qt::LeftButton);
}

void Hand::Release()
{
    held = Qt::NoButton;
    Send(QEvent::MouseButtonRelease, Qt::LeftButton);
}

void Hand::Type(const QString& text)
{
    for (const QChar letter : text)
        SendKey(0, QString(letter));
}

void Hand::PressKey(const QString& name)
{
    SendKey(QKeySequence(name)[0].key(), {});
}

void Hand::Send(QEvent::Type type, Qt::MouseButton button)
{
    QWindow* const window = FrontWindow().windowHandle();
    if (!window)
        throw RunTimeError(Words::AsIs("The window in front is not shown yet."));
    QMouseEvent event(type, QPointF(window->mapFromGlobal(place)), QPointF(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &event);
}

} // namespace sprout
