// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepScrollBar.h"

#include "ui/words/Texts.h"

namespace sprout {

StepScrollBar::StepScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent)
{
    setObjectName(QStringLiteral("TunFramHScroll"));
    SetSpokenName(*this, Words::Text("Scroll the steps"));
    setMinimum(1);
    setSingleStep(kStepPitch);
    hints.Watch(*this, Words::Text("Slide this to see the other steps"));
    connect(this, &QScrollBar::valueChanged, this, [this](int position) {
        if (ScrollGuard2)
            return;
        stepsLeft = StepsLeftAt(position);
        Q_EMIT Scrolled();
    });
}

void StepScrollBar::SetStepScroll(std::int32_t stepCount, std::int32_t surfaceWidth)
{
    const StepScroll scroll = StepScrollRange(stepCount, surfaceWidth);
    ScrollGuard2 = true;
    setMaximum(scroll.maximum);
    setPageStep(scroll.largeChange);
    setValue(minimum());
    ScrollGuard2 = false;
    stepsLeft = kStepsLeftAtStart;
}

void StepScrollBar::BringIntoView(std::int32_t step, std::int32_t surfaceWidth)
{
    setValue(ScrollToStep(step, value(), surfaceWidth));
}

} // namespace sprout
