// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TunePicture.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kRim = 6;
constexpr int kTunePicCorner = 8;

} // namespace

TunePicture::TunePicture(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void TunePicture::SetPicture(const sprout::Picture& picture)
{
    shown = picture;
    // As in a tune file: only the top left of a larger picture.
    image = picture.IsNothing() ? QImage() : ToImage(PictureFromColumns(PictureColumns(picture)));
    update();
}

void TunePicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::white);
    painter.setPen(QPen(hasFocus() ? kLink : kBark, hasFocus() ? 3 : 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), kTunePicCorner, kTunePicCorner);
    if (image.isNull())
        return;
    const int times = std::max(1, (std::min(width(), height()) - 2 * kRim) / kPictureSide);
    const int side = times * kPictureSide;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect((width() - side) / 2, (height() - side) / 2 + (isDown() ? 1 : 0), side, side), image);
}

void TunePicture::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QAbstractButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

} // namespace sprout
