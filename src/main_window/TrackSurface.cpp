// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackSurface.h"

#include <QFocusEvent>
#include <QFontMetricsF>
#include <QPaintEvent>

#include <algorithm>
#include <cmath>
#include <memory>

#include "core/MemoryBlock.h"
#include "ui/Palette.h"

namespace sprout {

namespace {

QImage ImageOfSize(QSize size)
{
    using Pixels = std::shared_ptr<QRgb[]>;
    const auto count = static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
    auto pixels = std::make_unique<Pixels>(MemoryBlock<QRgb>(count));
    auto* const bytes = reinterpret_cast<uchar*>(pixels->get());
    const auto release = [](void* block) { delete static_cast<Pixels*>(block); };
    return {bytes, size.width(), size.height(), QImage::Format_RGB32, release, pixels.release()};
}

} // namespace

SurfacePainter::SurfacePainter(QImage& kept, qreal pixelRatio) : painter(&kept), ratio(pixelRatio) {}

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
    // Whole pixels stay sharp when they are repeated; at a broken ratio they would differ in size.
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
    // A surface without room can be drawn on all the same.
    return (QSizeF(size()) * devicePixelRatioF()).toSize().expandedTo(QSize(1, 1));
}

void TrackSurface::Clear()
{
    ratio = devicePixelRatioF();
    if (kept.size() != DevicePixels())
        kept = ImageOfSize(DevicePixels());
    kept.fill(back);
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
    // What is drawn in a paint event is shown by it.
    if (!isPainting)
        update(part);
}

bool TrackSurface::IsStale() const
{
    return !isDrawn || ratio != devicePixelRatioF() || kept.size() != DevicePixels();
}

void TrackSurface::paintEvent(QPaintEvent* event)
{
    if (IsStale() && Redraw) {
        isPainting = true;
        Redraw();
        isPainting = false;
    }
    QPainter painter(this);
    painter.save();
    // Without a scale the picture is copied and not resampled.
    painter.scale(1 / ratio, 1 / ratio);
    for (const QRect& part : event->region()) {
        const QRectF device(QPointF(part.topLeft()) * ratio, QSizeF(part.size()) * ratio);
        const QRect whole = device.toAlignedRect() & kept.rect();
        painter.drawImage(whole, kept, whole);
    }
    painter.restore();
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

// A widget draws itself anew with every change of the focus; the surfaces are large and show it rarely.
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
