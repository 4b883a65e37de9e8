// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMouseEvent>
#include <QPoint>
#include <QWidget>

#include <functional>

#include "ui/widgets/DesktopPlacesWindows.h"

namespace sprout {

/// Moves a window without a system frame, following the point that the left button holds.
class WindowMover {
public:
    /// Asks the desktop to move a window with the pointer; returns false if it refuses.
    using Ask = std::function<bool(QWidget& window)>;

    explicit WindowMover(bool asksDesktop = DesktopPlacesWindows(), Ask askDesktop = AskForMove);

    void Press(const QWidget& window, const QMouseEvent& event);
    void Move(QWidget& window, const QMouseEvent& event);
    void Release() { holding = false; }

private:
    static bool AskForMove(QWidget& window);

    bool desktopPlaces;
    Ask ask;
    QPoint pressedAt; ///< on the screen
    QPoint inWindow;  ///< the same, from the window's corner
    bool holding = false;
};

} // namespace sprout
