// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "main_window/MainWindowTest.h"

namespace sprout {

/// The main window under a mouse that the test moves.
class MainMouseTest : public MainWindowTest {
protected:
    /// Moves the mouse over the middle of a control and returns the hint shown then.
    [[nodiscard]] std::string HintOver(const char* name) const
    {
        QWidget& control = Control(name);
        Send(control, QEvent::MouseMove, control.mapToGlobal(QPointF(control.rect().center())), Qt::NoButton);
        return TextOf("StatusLbl");
    }

    /// Moves the mouse over an empty place of the control; in the window, that is above the status frame.
    static void MoveOverGround(QWidget& ground)
    {
        const QPoint place = ground.isWindow() ? QPoint(100, ground.height() - 41) : QPoint(3, ground.height() - 3);
        Send(ground, QEvent::MouseMove, ground.mapToGlobal(QPointF(place)), Qt::NoButton);
    }

    void MoveInStrip(QPoint at) const
    {
        QWidget& strip = Control("TrackTitlePic");
        Send(strip, QEvent::MouseMove, strip.mapToGlobal(QPointF(at)), Qt::NoButton);
    }
};

} // namespace sprout
