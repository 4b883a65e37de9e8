// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/CellOutline.h"

#include <QPainter>

#include "main_window/rules/TrackPointer.h"
#include "ui/look/Palette.h"

namespace sprout {

namespace {

constexpr int kOutlineWidth = 3; ///< on each side of the cursor
constexpr int kDarkWidth = 2;

} // namespace

CellOutline::CellOutline(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("CellOutline"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(kCellCursorWidth + 2 * kOutlineWidth, kCellCursorHeight + 2 * kOutlineWidth);
    hide();
}

void CellOutline::PlaceAround(QPoint cursor)
{
    move(cursor - QPoint(kOutlineWidth, kOutlineWidth));
}

void CellOutline::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), kLink);
    painter.fillRect(rect().adjusted(kDarkWidth, kDarkWidth, -kDarkWidth, -kDarkWidth), Qt::white);
}

} // namespace sprout
