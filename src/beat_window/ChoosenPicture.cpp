// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/ChoosenPicture.h"

#include <QPainter>

#include "ui/look/Artwork.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kChoosenSide = 2 * kPictureSide;
constexpr int kChoosenFrame = 4;
constexpr qreal kChoosenCorner = 8;

} // namespace

ChoosenPicture::ChoosenPicture(QWidget* parent) : QAbstractButton(parent)
{
    setObjectName(QStringLiteral("ChoosenPic"));
    setFocusPolicy(Qt::NoFocus); // the play button next to it does the same
    setCursor(Qt::PointingHandCursor);
    resize(ChoosenPicture::sizeHint());
}

QSize ChoosenPicture::sizeHint() const
{
    return {kChoosenSide + 2 * kChoosenFrame, kChoosenSide + 2 * kChoosenFrame};
}

void ChoosenPicture::ShowPicture(const Picture& picture)
{
    image = picture.IsNothing() ? QImage() : ToImage(picture);
    update();
}

void ChoosenPicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kStone, 2));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kChoosenCorner, kChoosenCorner);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!image.isNull())
        painter.drawImage(QRect(kChoosenFrame, kChoosenFrame, kChoosenSide, kChoosenSide), image);
}

} // namespace sprout
