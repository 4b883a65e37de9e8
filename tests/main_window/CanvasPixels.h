// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>

#include <utility>

#include "ui/look/Palette.h"

namespace sprout {

/// Collects the regions that are redrawn on a widget.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& watched) : widget(watched)
    {
        static_cast<void>(widget.grab()); // labels do their layout when they are first drawn
        DrawNow();
        widget.installEventFilter(this);
    }

    /// What was drawn since the last call, including what is still pending.
    QRegion Drawn()
    {
        DrawNow();
        return std::exchange(drawn, QRegion());
    }

    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            drawn += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

private:
    void DrawNow()
    {
        QEvent request(QEvent::UpdateRequest);
        QApplication::sendEvent(widget.window(), &request);
    }

    QWidget& widget;
    QRegion drawn;
};

/// Returns true if a part of the image has a pixel of this colour.
inline bool HasColourIn(const QImage& image, const QRect& place, const QColor& colour)
{
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (image.valid(x, y) && image.pixelColor(x, y) == colour)
                return true;
    return false;
}

/// The bounding box of the pixels for which `isInk` is true.
template <class IsInk>
QRect InkIn(const QRect& place, IsInk isInk)
{
    QRect box;
    for (int y = place.top(); y <= place.bottom(); ++y)
        for (int x = place.left(); x <= place.right(); ++x)
            if (isInk(x, y))
                box |= QRect(x, y, 1, 1);
    return box;
}

/// The box of a text whose line begins at `at`.
inline QRect InkOf(const QString& text, QPoint at, const QFont& font)
{
    QImage page(600, 400, QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setFont(font);
    painter.setPen(kBark);
    painter.drawText(QPointF(at.x(), at.y() + QFontMetricsF(font).ascent()), text);
    painter.end();
    return InkIn(page.rect(), [&page](int x, int y) { return page.pixelColor(x, y) == kBark; });
}

} // namespace sprout
