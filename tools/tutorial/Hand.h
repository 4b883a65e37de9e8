// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QPoint>
#include <QString>
#include <QWidget>

namespace sprout {

/// The window that takes what the user does: a menu, the modal window, the help or the main window. Throws
/// `RunTimeError` if there is none.
[[nodiscard]] QWidget& FrontWindow();

/// Uses the mouse and the keyboard on the window in front. Points are on the screen.
class Hand {
public:
    void MoveTo(QPoint point);
    void Press();
    void Release();
    /// Types into what has the focus; what was marked there is replaced.
    static void Type(const QString& text);
    /// Presses a key by the name that Qt gives it, such as "Delete".
    static void PressKey(const QString& name);

private:
    void Send(QEvent::Type type, Qt::MouseButton button);

    QPoint place;
    Qt::MouseButtons held;
};

} // namespace sprout
