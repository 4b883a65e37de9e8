// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepKeys.h"

#include <QKeyEvent>

namespace sprout {

namespace {

bool IsArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

/// The keys that only a step that is on obeys.
std::optional<StepCommand> CommandOfOnStepKey(int key, std::int32_t step)
{
    switch (key) {
    case Qt::Key_Up:
        return StepCommand{.act = StepAct::MovePitch, .step = step, .amount = 1};
    case Qt::Key_Down:
        return StepCommand{.act = StepAct::MovePitch, .step = step, .amount = -1};
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return StepCommand{.act = StepAct::ChooseBeat, .step = step};
    case Qt::Key_P:
        return StepCommand{.act = StepAct::PlayStep, .step = step};
    case Qt::Key_B:
        return StepCommand{.act = StepAct::PlayBeat, .step = step};
    default:
        return {};
    }
}

/// Alone, left and right walk; with Shift they change the length of a step that is on.
StepCommand CommandOfSideKey(const QKeyEvent& event, std::int32_t step, bool isOn)
{
    const std::int32_t direction = event.key() == Qt::Key_Left ? -1 : 1;
    if (!event.modifiers().testFlag(Qt::ShiftModifier))
        return {.act = StepAct::WalkTo, .step = step + direction};
    return isOn ? StepCommand{.act = StepAct::StretchBar, .step = step, .amount = direction} : StepCommand{};
}

} // namespace

std::optional<StepCommand> CommandOfKey(const QKeyEvent& event, std::int32_t step, bool isOn, std::int32_t lastStep)
{
    // A held key would render, or delete, again and again.
    if (event.isAutoRepeat() && !IsArrow(event.key()))
        return StepCommand{};
    switch (event.key()) {
    case Qt::Key_Space:
        return StepCommand{.act = StepAct::ToggleLamp, .step = step};
    case Qt::Key_Home:
        return StepCommand{.act = StepAct::WalkTo, .step = 1};
    case Qt::Key_End:
        return StepCommand{.act = StepAct::WalkTo, .step = lastStep};
    case Qt::Key_Insert:
        return StepCommand{.act = StepAct::UseMenu, .step = step, .item = StepMoveMnu::InsertStep};
    case Qt::Key_Delete:
        return StepCommand{.act = StepAct::UseMenu, .step = step, .item = StepMoveMnu::DeleteStep};
    case Qt::Key_Left:
    case Qt::Key_Right:
        return CommandOfSideKey(event, step, isOn);
    default:
        const std::optional<StepCommand> command = CommandOfOnStepKey(event.key(), step);
        return command && !isOn ? StepCommand{} : command;
    }
}

} // namespace sprout
