// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackMarker.h"

#include <QPainter>

#include "main_window/rules/TrackGeometry.h"
#include "ui/look/Artwork.h"

namespace sprout {

TrackMarker::TrackMarker(const char* name, QWidget* parent) : QWidget(parent)
{
    setObjectName(QString::fromLatin1(name));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(kCellWidth, kPaintHeight);
    hide();
}

void TrackMarker::SetColour(const QColor& newColour)
{
    if (newColour == colour)
        return;
    colour = newColour;
    update();
}

void TrackMarker::SetPicture(const QString& name)
{
    picture = name;
    update();
}

void TrackMarker::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (picture.isEmpty())
        painter.fillRect(rect(), colour);
    else
        painter.drawPixmap(rect(), Artwork(picture, QSize(kCellWidth, kPaintHeight), devicePixelRatioF()));
}

} // namespace sprout
