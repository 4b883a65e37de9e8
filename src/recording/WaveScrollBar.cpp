// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/WaveScrollBar.h"

#include <QKeyEvent>

#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kScrollMost = 100;
constexpr int kScrollPage = 10;

} // namespace

WaveScrollBar::WaveScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent)
{
    setObjectName(QStringLiteral("HScroll"));
    SetSpokenName(*this, Words::Text("Scroll the sound"));
    setRange(0, kScrollMost);
    setPageStep(kScrollPage);
    setFocusPolicy(Qt::TabFocus);
    setTracking(false);
    setStyleSheet(QStringLiteral("QScrollBar:focus { border: 2px solid #1F6FA8; border-radius: 9px; }"
                                 "QScrollBar::handle:focus { border-radius: 6px; }"));
}

void WaveScrollBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Left)
        triggerAction(SliderSingleStepSub);
    else if (event->key() == Qt::Key_Right)
        triggerAction(SliderSingleStepAdd);
    else
        QScrollBar::keyPressEvent(event);
}

} // namespace sprout
