// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TempoSlot.h"

#include <QMouseEvent>
#include <QPainter>

#include "main_window/rules/TempoBarPlaces.h"
#include "ui/look/Palette.h"
#include "ui/widgets/SliderPointer.h"

namespace sprout {

namespace {

constexpr double kKnot = 7; // half its height
constexpr double kUsualKnot = 10;

} // namespace

TempoSlot::TempoSlot(QWidget* parent) : QWidget(parent)
{
    resize(kTempoSlotWidth, kTempoSlotHeight);
}

double TempoSlot::MiddleOf(std::int32_t percent) const
{
    const Slider slider{0, static_cast<double>(width()), static_cast<double>(kTempoPointerWidth), kLowestTempoPercent,
                        kHighestTempoPercent};
    return slider.LeftOf(percent) + kTempoPointerWidth / 2.0;
}

void TempoSlot::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT Pressed(x() + event->position().x());
}

void TempoSlot::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = height() / 2.0;
    const QLineF stem(MiddleOf(kLowestTempoPercent), middle, MiddleOf(kHighestTempoPercent), middle);
    for (const QPen& pen : {QPen(kBark, 2 * kTempoStemEnd), QPen(kLeaf, kTempoStemEnd)}) {
        painter.setPen(QPen(pen.brush(), pen.widthF(), Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(stem);
    }
    painter.setPen(QPen(kBark, 2, Qt::SolidLine, Qt::RoundCap));
    for (std::int32_t percent = kLowestTempoPercent; percent <= kHighestTempoPercent; percent += kLowestTempoPercent) {
        const double half = percent == kUsualTempoPercent ? kUsualKnot : kKnot;
        painter.drawLine(QLineF(MiddleOf(percent), middle - half, MiddleOf(percent), middle + half));
    }
}

} // namespace sprout
