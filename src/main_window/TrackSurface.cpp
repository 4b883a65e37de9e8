// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackSurface.h"

#include <QFocusEvent>
#include <QFontMetricsF>
#include <QPaintEvent>

#include <algorithm>
#include <cmath>

#include "ui/look/Palette.h"

namespace sprout {

SurfacePainter::SurfacePainter(QPaintDevice& device, qreal pixelRatio) : painter(&device), ratio(pixelRatio)
{
    painter.scale(1 / device.devicePixelRatio(), 1 / device.devicePixelRatio());
}

QRect SurfacePainter::DeviceRect(const QRect& place) const
{
    const QPoint topLeft(qRound(place.x() * ratio), qRound(place.y() * ratio));
    const QPoint behind(qRound((place.x() + place.width()) * ratio), qRound((place.y() + place.height()) * ratio));
    return {topLeft, behind - QPoint(1, 1)};
}

void SurfacePainter::Fill(const QRect& place, const QColor& colour)
{
    painter.fillRect(DeviceRect(place), colour);
}

void SurfacePainter::Tile(const QRect& place, const QPixmap& artwork)
{
    const QRect device = DeviceRect(place);
    const int height = std::min(device.height(), artwork.height());
    for (int x = device.left(); x <= device.right() && !artwork.isNull(); x += artwork.width()) {
        const int width = std::min(artwork.width(), device.right() + 1 - x);
        painter.drawPixmap(QRect(x, device.top(), width, height), artwork, QRect(0, 0, width, height));
    }
}

void SurfacePainter::Lay(const QRect& place, const QPixmap& artwork)
{
    const QRect device = DeviceRect(place);
    const QSize size = device.size().boundedTo(artwork.size());
    painter.drawPixmap(QRect(device.topLeft(), size), artwork, QRect(QPoint(0, 0), size));
}

void SurfacePainter::LayBitmap(const QRect& place, const QImage& bitmap)
{
    // Repeated whole pixels stay sharp; at a fractional ratio they would differ in size.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, ratio != std::floor(ratio));
    painter.drawImage(DeviceRect(place), bitmap);
}

void SurfacePainter::Write(qreal x, int top, const QFont& font, const QString& text)
{
    painter.save();
    painter.scale(ratio, ratio);
    painter.setFont(font);
    painter.setPen(kBark);
    painter.drawText(QPointF(x, top + QFontMetricsF(font).ascent()), text);
    painter.restore();
}

TrackSurface::TrackSurface(const char* name, const QColor& backColour, QWidget* parent)
    : QWidget(parent), back(backColour)
{
    setObjectName(QString::fromLatin1(name));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QSize TrackSurface::DevicePixels() const
{
    // Even a surface without any room can be drawn on.
    return (QSizeF(size()) * devicePixelRatioF()).toSize().expandedTo(QSize(1, 1));
}

void TrackSurface::Clear()
{
    ratio = devicePixelRatioF();
    if (!isStraight && kept.size() != DevicePixels())
        kept = QImage(DevicePixels(), QImage::Format_RGB32);
    Painter().Fill(rect(), back);
    isDrawn = true;
    Changed(rect());
}

void TrackSurface::Forget()
{
    isDrawn = false;
    update();
}

void TrackSurface::Changed(const QRect& part)
{
    // A paint event shows what is drawn in it.
    if (!isPainting)
        update(part);
}

bool TrackSurface::IsStale() const
{
    return !isDrawn || ratio != devicePixelRatioF() || (!isStraight && kept.size() != DevicePixels());
}

SurfacePainter TrackSurface::Painter()
{
    return {isStraight ? static_cast<QPaintDevice&>(*this) : kept, ratio};
}

void TrackSurface::PaintStraight()
{
    isStraight = true;
    Redraw();
    isStraight = false;
    isDrawn = false;
    QMetaObject::invokeMethod(this, qOverload<>(&QWidget::update), Qt::QueuedConnection);
}

void TrackSurface::PaintKept(const QRegion& region)
{
    if (IsStale() && Redraw)
        Redraw();
    QPainter painter(this);
    // Without a scale the picture is copied, not resampled.
    painter.scale(1 / ratio, 1 / ratio);
    for (const QRect& part : region) {
        const QRectF device(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
        const QRect whole = device.toAlignedRect() & kept.rect();
        painter.drawImage(whole, kept, whole);
    }
}

void TrackSurface::paintEvent(QPaintEvent* event)
{
    isPainting = true;
    if (wasShown || !Redraw)
        PaintKept(event->region());
    else
        PaintStraight();
    isPainting = false;
    wasShown = true;
    QPainter painter(this);
    PaintOver(painter);
}

void TrackSurface::PaintOver(QPainter& /*painter*/) {}

void TrackSurface::PaintFocusRing(QPainter& painter, const QRect& place)
{
    const auto frame = [&painter](const QRect& outer, int breadth, const QColor& colour) {
        for (const QRect& side : QRegion(outer).subtracted(outer.adjusted(breadth, breadth, -breadth, -breadth)))
            painter.fillRect(side, colour);
    };
    frame(place, 3, Qt::white);
    frame(place, 2, kLink);
}

void TrackSurface::UpdateFocusRing()
{
    if (focusByKey)
        update();
}

// By default a widget redraws on every focus change; these surfaces are large and rarely show the focus.
void TrackSurface::focusInEvent(QFocusEvent* event)
{
    const auto reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        focusByKey = reason != Qt::MouseFocusReason;
    UpdateFocusRing();
}

void TrackSurface::focusOutEvent(QFocusEvent* /*event*/)
{
    UpdateFocusRing();
}

void TrackSurface::mousePressEvent(QMouseEvent* event)
{
    if (focusByKey)
        update();
    focusByKey = false;
    event->accept();
}

} // namespace sprout
