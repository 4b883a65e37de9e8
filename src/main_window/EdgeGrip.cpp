// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/EdgeGrip.h"

#include <QMouseEvent>
#include <QWindow>

#include "ui/widgets/DesktopPlacesWindows.h"
#include "ui/widgets/PutAt.h"

namespace sprout {

namespace {

Qt::CursorShape CursorOf(const WindowEdges& edges)
{
    const bool across = edges.left || edges.right;
    const bool down = edges.top || edges.bottom;
    if (across && down)
        return edges.left == edges.top ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    return across ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

Qt::Edges SystemEdges(const WindowEdges& edges)
{
    Qt::Edges system;
    system.setFlag(Qt::LeftEdge, edges.left);
    system.setFlag(Qt::TopEdge, edges.top);
    system.setFlag(Qt::RightEdge, edges.right);
    system.setFlag(Qt::BottomEdge, edges.bottom);
    return system;
}

QString NameOf(const WindowEdges& edges)
{
    QString name = QStringLiteral("Grip");
    name += edges.top ? QStringLiteral("Top") : edges.bottom ? QStringLiteral("Bottom") : QString();
    name += edges.left ? QStringLiteral("Left") : edges.right ? QStringLiteral("Right") : QString();
    return name;
}

} // namespace

EdgeGrip::EdgeGrip(QWidget* window, const WindowEdges& edges) : QWidget(window), held(edges)
{
    setObjectName(NameOf(edges));
    setCursor(CursorOf(edges));
}

void EdgeGrip::Place()
{
    PutAt(*this, GripPlace(held, window()->width(), window()->height()));
    raise();
}

void EdgeGrip::mousePressEvent(QMouseEvent* event)
{
    dragging = event->button() == Qt::LeftButton;
    downAt = event->globalPosition().toPoint();
    const QRect place = window()->geometry();
    start = {place.x(), place.y(), place.width(), place.height()};
}

void EdgeGrip::mouseMoveEvent(QMouseEvent* event)
{
    // Not at the press: the desktop would keep the edge at the pointer if the button is released before it hears of it.
    if (dragging && DesktopPlacesWindows() && window()->windowHandle())
        dragging = !window()->windowHandle()->startSystemResize(SystemEdges(held));
    if (!dragging)
        return;
    const QPoint by = event->globalPosition().toPoint() - downAt;
    PutAt(*window(), DraggedByEdges(start, held, by.x(), by.y()));
}

void EdgeGrip::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    dragging = false;
}

} // namespace sprout
