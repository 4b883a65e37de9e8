// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/ArtImage.h"

#include <QPainter>

#include "ui/look/Artwork.h"

namespace sprout {

ArtImage::ArtImage(const char* name, QSize size, QWidget* parent) : QWidget(parent)
{
    setObjectName(QString::fromLatin1(name));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(size);
}

void ArtImage::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, Artwork(QStringLiteral("pictures/") + objectName(), size(), devicePixelRatioF()));
}

} // namespace sprout
