// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepFocusRow.h"

#include <algorithm>

#include "tune_window/BeatNames.h"
#include "tune_window/StepFocus.h"

namespace sprout {

namespace {

constexpr std::int32_t kMostFocusSteps = 256; // the most that a user's tune can have; a foreign file may contain more

} // namespace

StepFocusRow::StepFocusRow(QWidget* ofSurface, QWidget* before, QWidget* after)
    : QObject(ofSurface), surface(ofSurface), tabBefore(before), tabAfter(after)
{
}

void StepFocusRow::ShowTune(const Tune& tune, BeatNames& names, std::int32_t stepsLeft)
{
    const std::int32_t reached = std::min(tune.StepCount, kMostFocusSteps);
    const auto wanted = static_cast<std::size_t>(reached) + 1;
    for (; steps.size() > wanted; steps.pop_back())
        delete steps.back();
    while (steps.size() < wanted)
        steps.push_back(MakeStep(static_cast<std::int32_t>(steps.size())));
    for (std::int32_t number = 1; number <= reached; ++number) {
        const TuneStep& step = At(tune.Steps, number);
        At(steps, number)->ShowStep(step, names.NameForPeople(step.StepBeat.Name), stepsLeft);
    }
    SetTabStep(std::clamp(tabStep, 1, std::max(reached, 1)));
}

StepFocus* StepFocusRow::MakeStep(std::int32_t step)
{
    auto* focus = new StepFocus(step, surface);
    connect(focus, &StepFocus::KeyPressed, this, [this, step](QKeyEvent* event) { Q_EMIT KeyPressed(step, event); });
    connect(focus, &StepFocus::MenuWanted, this, [this, step] { Q_EMIT MenuWanted(step); });
    connect(focus, &StepFocus::Reached, this, [this, step] {
        SetTabStep(step);
        Q_EMIT Reached(step);
    });
    connect(focus, &QAbstractButton::clicked, this, [this, step] { Q_EMIT Clicked(step); });
    QWidget::setTabOrder(step == 1 ? tabBefore : steps.back(), focus);
    QWidget::setTabOrder(focus, tabAfter);
    focus->show();
    return focus;
}

void StepFocusRow::SetTabStep(std::int32_t step)
{
    tabStep = step;
    for (std::int32_t other = 1; other <= LastStep(); ++other)
        At(steps, other)->SetTabStop(other == step);
}

void StepFocusRow::WalkTo(std::int32_t step)
{
    if (step >= 1 && step <= LastStep())
        At(steps, step)->setFocus(Qt::TabFocusReason);
}

} // namespace sprout
