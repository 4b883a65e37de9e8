// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepNosBox.h"

#include <QWheelEvent>

#include <array>
#include <optional>
#include <string>

#include "core/Shared.h"
#include "tune_window/rules/StepEdits.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/PopupKeys.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

/// The step counts to pick from; -1 asks for another number.
struct StepNosRow {
    LaterWords caption;
    std::int32_t steps;
};

constexpr std::int32_t kOtherSteps = -1;
constexpr std::array kStepNos{
    StepNosRow{Words::Later("8 Steps"), 8},
    StepNosRow{Words::Later("16 Steps"), 16},
    StepNosRow{Words::Later("32 Steps"), 32},
    StepNosRow{Words::Later("64 Steps"), 64},
    StepNosRow{Words::Later("Other...!"), kOtherSteps},
};

} // namespace

StepNosBox::StepNosBox(QWidget* parent) : QComboBox(parent)
{
    KeepClosingKeys(*this); // closing its list must not close the window
    setObjectName(QStringLiteral("StepNosCmb"));
    SetSpokenName(*this, Words::Text("Number of steps"));
    for (const StepNosRow& row : kStepNos)
        AddItem(*this, row.caption, row.steps);
    hints.Watch(*this, Words::Text("Number of steps, use it to make the tune longer or shorter"));
    connect(this, &QComboBox::activated, this, [this](int index) { Guarded([&] { ClickStepNos(index); }); });
}

void StepNosBox::SyncStepCombo()
{
    if (count() > static_cast<int>(kStepNos.size()))
        removeItem(0);
    const std::int32_t steps = Shared().CurrentTune.StepCount;
    if (findData(steps) < 0)
        InsertItem(*this, 0, Words::Text("%1 Steps", steps), steps);
    setCurrentIndex(findData(steps));
}

void StepNosBox::ClickStepNos(int index)
{
    std::int32_t steps = itemData(index).toInt();
    if (steps == kOtherSteps)
        steps = AskStepCount();
    if (steps == 0)
        return SyncStepCombo();
    Q_EMIT StepCountWanted(steps);
}

std::int32_t StepNosBox::AskStepCount()
{
    const std::string now = std::to_string(Shared().CurrentTune.StepCount);
    for (;;) {
        const std::string answer =
            AskText(now, Words::Text("Enter the Number of Steps:"), Words::Text("(Enter between 2 to 64)"));
        if (answer.empty())
            return 0;
        if (const std::optional<std::int32_t> typed = TypedStepCount(answer))
            return *typed;
        ShowMessage(Words::Text("%1 is not valid,", answer), Words::Text("Enter a number between 2 to 64."));
    }
}

/// Turning the wheel over the box must not change the tune.
void StepNosBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace sprout
