// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/DemoPulse.h"

#include <QPainter>

#include "demo/rules/DemoPlaces.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kRingWidth = 4;
constexpr int kRingOutline = 6;
constexpr int kRingAround = 5; ///< the ring surrounds the rectangle where the picture has room for it
constexpr double kRingCorner = 8;

} // namespace

DemoPulse::DemoPulse(QWidget* parent) : QWidget(parent), pulseTimer(new QTimer(this))
{
    setObjectName(QStringLiteral("DemoPulseShp"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    pulseTimer->setObjectName(QStringLiteral("DemoPulseTimer"));
    connect(pulseTimer, &QTimer::timeout, this, &DemoPulse::Tick);
}

void DemoPulse::Await(const QRect& place)
{
    Rest();
    const QRect around = place.adjusted(-kRingAround, -kRingAround, kRingAround, kRingAround);
    setGeometry(around.intersected(parentWidget()->rect()));
    pulseTimer->start(kBeforePulse);
}

void DemoPulse::Rest()
{
    pulseTimer->stop();
    hide();
}

void DemoPulse::Tick()
{
    if (isHidden()) {
        ticks = 0;
        raise();
        show();
        pulseTimer->start(kPulseTick);
    }
    ++ticks;
    update();
}

void DemoPulse::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(PulseStrength(ticks));
    const double inset = kRingOutline / 2.0;
    const QRectF ring = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(kBark, kRingOutline));
    painter.drawRoundedRect(ring, kRingCorner, kRingCorner);
    painter.setPen(QPen(kSun, kRingWidth));
    painter.drawRoundedRect(ring, kRingCorner, kRingCorner);
}

} // namespace sprout
