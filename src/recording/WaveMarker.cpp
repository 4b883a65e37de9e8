// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WaveMarker.h"

#include <QPainter>

namespace sprout {

WaveMarker::WaveMarker(const char* name, const QColor& fill, QWidget* parent) : QWidget(parent), colour(fill)
{
    setObjectName(QString::fromLatin1(name));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void WaveMarker::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), colour);
}

} // namespace sprout
