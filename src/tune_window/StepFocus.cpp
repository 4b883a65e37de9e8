// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepFocus.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

#include "tune_window/rules/StepLayout.h"
#include "tune_window/rules/StepPointer.h"
#include "ui/look/Palette.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kRingTop = 16;
constexpr int kRingBottom = 292;
constexpr int kRingBeside = 3; ///< beyond the column
constexpr int kRingWidth = 3;
constexpr qreal kRingRadius = 6;

} // namespace

StepFocus::StepFocus(std::int32_t step, QWidget* surface) : QAbstractButton(surface), number(step)
{
    setObjectName(QStringLiteral("Step%1").arg(step));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    SetTabStop(false);
    setCheckable(true);
    SetSpokenDescription(
        *this,
        Words::Text(
            "Left and right move from step to step. The space bar switches the step on or off, up and down change its "
            "pitch, "
            "Shift with left or right its length, Enter chooses its instrument. P plays the step, B its instrument. "
            "The "
            "menu key has more."));
}

void StepFocus::ShowStep(const TuneStep& step, std::string_view beat, std::int32_t stepsLeft)
{
    setGeometry(StepLeft(number, stepsLeft) - kRingBeside, kRingTop, kStepHitWidth + 2 * kRingBeside,
                kRingBottom - kRingTop);
    setChecked(step.IsOn());
    SetSpokenName(*this, StepInWords(step, number, beat));
}

void StepFocus::paintEvent(QPaintEvent* /*event*/)
{
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kLink, kRingWidth));
    constexpr qreal inset = kRingWidth / 2.0;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), kRingRadius, kRingRadius);
}

void StepFocus::keyPressEvent(QKeyEvent* event)
{
    Q_EMIT KeyPressed(event);
}

void StepFocus::keyReleaseEvent(QKeyEvent* event)
{
    event->ignore(); // the key press has already done it
}

void StepFocus::contextMenuEvent(QContextMenuEvent* /*event*/)
{
    Q_EMIT MenuWanted();
}

void StepFocus::focusInEvent(QFocusEvent* event)
{
    QAbstractButton::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        Q_EMIT Reached();
}

} // namespace sprout
