// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/TrackLabel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

#include "ui/look/Look.h"
#include "ui/look/Palette.h"
#include "ui/widgets/SpokenRoles.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kHeadingPixels = 12;

} // namespace

TrackLabel::TrackLabel(const char* name, const Words& text, std::function<void()> click, QWidget* parent)
    : QLabel(parent), onClick(std::move(click))
{
    setObjectName(QString::fromLatin1(name));
    QFont font = ButtonFont();
    font.setPixelSize(kHeadingPixels);
    setFont(font);
    setAlignment(Qt::AlignCenter);
    SetText(*this, text);
    SetSpokenName(*this, text);
    setFocusPolicy(Qt::TabFocus);
    SetSpokenRole(*this, QAccessible::Button);
}

void TrackLabel::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        onClick();
}

void TrackLabel::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Space)
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        onClick();
}

void TrackLabel::focusInEvent(QFocusEvent* event)
{
    update();
    QLabel::focusInEvent(event);
}

void TrackLabel::focusOutEvent(QFocusEvent* event)
{
    update();
    QLabel::focusOutEvent(event);
}

void TrackLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(QPen(kLink, 2));
    painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
}

} // namespace sprout
