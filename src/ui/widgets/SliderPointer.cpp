// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/SliderPointer.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <utility>

#include "base/Numbers.h"
#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr std::int32_t kPercentsAPage = 10;

}

SliderPointer::SliderPointer(QWidget* parent, const PointerLook& pointerLook, Told onSlide, Told onChoose)
    : QAbstractSlider(parent),
      look(pointerLook),
      slider{0, look.size.width() * 2.0, static_cast<double>(look.size.width()), look.lowest, look.highest},
      slide(std::move(onSlide)),
      choose(std::move(onChoose))
{
    resize(look.size);
    setOrientation(Qt::Horizontal);
    setRange(look.lowest, look.highest);
    setPageStep(kPercentsAPage);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::SizeHorCursor);
    connect(this, &QAbstractSlider::valueChanged, this, &SliderPointer::TakeValue);
}

void SliderPointer::ShowPercent(std::int32_t percent)
{
    shown = percent;
    setValue(percent);
    PutAt(slider.LeftOf(percent));
}

void SliderPointer::SetSlot(int slotLeft, int widthPx)
{
    slider.slotLeft = slotLeft;
    slider.slotWidth = widthPx;
    PutAt(slider.LeftOf(value()));
}

void SliderPointer::ChooseAt(double x)
{
    choose(slider.PercentAt(slider.Dragged(x - look.size.width() / 2.0, 0, 0)));
}

void SliderPointer::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    isDragged = true;
    downX = RoundHalfEven(event->position().x());
}

void SliderPointer::mouseMoveEvent(QMouseEvent* event)
{
    if (!isDragged)
        return;
    PutAt(slider.Dragged(left, event->position().x(), downX));
    const std::int32_t percent = slider.PercentAt(left);
    setValue(percent);
    // Even if the value stays the same: the value shown before may lie outside the slider's range.
    slide(percent);
}

void SliderPointer::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        EndDrag();
}

/// Turning the wheel in passing changes nothing.
void SliderPointer::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

/// A window that opens during a drag receives the release instead of the pointer.
void SliderPointer::focusOutEvent(QFocusEvent* event)
{
    EndDrag();
    QAbstractSlider::focusOutEvent(event);
}

void SliderPointer::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.4);
    const QPoint inside((width() - look.picture.width()) / 2, (height() - look.picture.height()) / 2);
    painter.drawPixmap(inside, Artwork(QString::fromLatin1(look.artwork), look.picture, devicePixelRatioF()));
    if (hasFocus())
        PaintFocus(painter);
}

void SliderPointer::PaintFocus(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF edge = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    // Light next to dark, so that one of them is visible on any background.
    for (const QPen& pen : {QPen(Qt::white, 3), QPen(kLink, 2)}) {
        painter.setPen(pen);
        painter.drawRoundedRect(edge, 8, 8);
    }
}

/// Handles values set by a key or a screen reader; a drag reports its own.
void SliderPointer::TakeValue(int percent)
{
    if (!isDragged && percent != shown)
        choose(percent);
}

void SliderPointer::EndDrag()
{
    if (!isDragged)
        return;
    isDragged = false;
    choose(slider.PercentAt(left));
}

void SliderPointer::PutAt(double newLeft)
{
    left = newLeft;
    move(static_cast<int>(std::lround(left)), y());
}

} // namespace sprout
