// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QWidget>

#include "main_window/rules/EdgeDrag.h"

namespace sprout {

/// An invisible edge or corner of a window without a system frame; dragging it resizes the window.
class EdgeGrip : public QWidget {
    Q_OBJECT

public:
    EdgeGrip(QWidget* window, const WindowEdges& edges);

    /// Moves to its place for the window's current size.
    void Place();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    WindowEdges held;
    Box start;
    QPoint downAt; ///< on the screen
    bool dragging = false;
};

} // namespace sprout
