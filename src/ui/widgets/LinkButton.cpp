// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/LinkButton.h"

#include <QKeyEvent>

#include <string_view>

#include "ui/words/QtText.h"

namespace sprout {

namespace {

constexpr std::string_view kLinkStyle =
    "QPushButton { color: #1F6FA8; background: transparent; border: 2px solid transparent; border-radius: 6px;"
    " padding: 2px 4px; text-align: left; text-decoration: underline; }"
    "QPushButton:hover { color: #1F6B34; } QPushButton:focus { border-color: #1F6FA8; }";

bool IsArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

LinkButton::LinkButton(const char* name, const Words& text, QWidget* parent) : QPushButton(QtText(text), parent)
{
    setObjectName(QString::fromLatin1(name));
    setStyleSheet(QtText(kLinkStyle));
    setCursor(Qt::PointingHandCursor);
}

void LinkButton::keyPressEvent(QKeyEvent* event)
{
    if (IsArrow(event->key()))
        event->ignore();
    else if (!event->isAutoRepeat())
        QPushButton::keyPressEvent(event);
}

} // namespace sprout
