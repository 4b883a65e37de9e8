// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoPic.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <utility>

#include "demo/rules/DemoPlaces.h"
#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"
#include "ui/widgets/PutAt.h"
#include "ui/widgets/SpokenRoles.h"
#include "ui/words/Texts.h"

namespace sprout {

DemoPic::DemoPic(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("DemoImages"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true); // a move without a button tells that the button was lost
    SetSpokenRole(*this, QAccessible::Graphic);
}

void DemoPic::Show(const Picture& picture, const Picture& sharp)
{
    pictureSize = {picture.Width(), picture.Height()};
    const bool isTwice = sharp.Width() == 2 * picture.Width() && sharp.Height() == 2 * picture.Height();
    pixmap = QPixmap::fromImage(ToImage(isTwice ? sharp : picture));
    update();
}

void DemoPic::Speak(const Words& instruction)
{
    SetSpokenName(*this, instruction);
    if (!hasFocus())
        return;
    QAccessibleEvent again(this, QAccessible::Focus);
    QAccessible::updateAccessibility(&again);
}

DemoPoint DemoPic::PixelAt(const QMouseEvent& event) const
{
    const QPointF at = event.position();
    const DemoPoint shown{static_cast<int>(std::floor(at.x())), static_cast<int>(std::floor(at.y()))};
    return pixmap.isNull() ? shown : PointInPicture(shown, pictureSize, SizeOf(*this));
}

void DemoPic::LetGo()
{
    if (std::exchange(isHeld, false))
        Q_EMIT Released();
}

void DemoPic::hideEvent(QHideEvent* event)
{
    LetGo();
    QWidget::hideEvent(event);
}

void DemoPic::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (pixmap.isNull())
        painter.fillRect(rect(), kSand);
    else
        painter.drawPixmap(rect(), pixmap);
    if (!isFocusShown)
        return;
    painter.setPen(QPen(kLink, 2));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void DemoPic::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    isHeld = true;
    Q_EMIT Pressed(PixelAt(*event));
}

void DemoPic::mouseMoveEvent(QMouseEvent* event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        LetGo();
    else if (isHeld)
        Q_EMIT Moved(PixelAt(*event));
}

void DemoPic::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        LetGo();
}

/// The focus is shown once the keyboard has brought it: a frame around every picture would say nothing.
void DemoPic::focusInEvent(QFocusEvent* event)
{
    isFocusShown = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QWidget::focusInEvent(event);
}

void DemoPic::focusOutEvent(QFocusEvent* event)
{
    isFocusShown = false;
    QWidget::focusOutEvent(event);
}

} // namespace sprout
