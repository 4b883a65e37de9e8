// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/WindowMover.h"

#include <QApplication>
#include <QWindow>

#include <utility>

#include "ui/rules/WindowDrag.h"

namespace sprout {

WindowMover::WindowMover(bool asksDesktop, Ask askDesktop) : desktopPlaces(asksDesktop), ask(std::move(askDesktop)) {}

bool WindowMover::AskForMove(QWidget& window)
{
    return window.windowHandle() && window.windowHandle()->startSystemMove();
}

void WindowMover::Press(const QWidget& window, const QMouseEvent& event)
{
    holding = event.button() == Qt::LeftButton;
    // In screen coordinates: window coordinates are stale while the server is still moving the window.
    pressedAt = event.globalPosition().toPoint();
    inWindow = pressedAt - window.pos();
}

void WindowMover::Move(QWidget& window, const QMouseEvent& event)
{
    if (!holding)
        return;
    const QPoint at = event.globalPosition().toPoint();
    switch (WindowDragAt(desktopPlaces, (at - pressedAt).manhattanLength(), QApplication::startDragDistance())) {
    case WindowDrag::Wait:
        break;
    case WindowDrag::AskDesktop:
        holding = !ask(window);
        break;
    case WindowDrag::MoveItself:
        if (!window.isMaximized())
            window.move(at - inWindow);
    }
}

} // namespace sprout
