// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepCommands.h"

#include <utility>

#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "tune_window/EditorPlays.h"
#include "tune_window/TunFramPic.h"
#include "ui/Windows.h"
#include "ui/forms/Dialogs.h"

namespace sprout {

StepCommands::StepCommands(TunFramPic& onSurface, EditorPlays& ofEditor, std::function<void()> onDraw)
    : QObject(&onSurface), surface(onSurface), plays(ofEditor), draw(std::move(onDraw))
{
}

void StepCommands::Do(const StepCommand& command)
{
    Tune& tune = Shared().CurrentTune;
    switch (command.act) {
    case StepAct::ToggleLamp:
        return ToggleLamp(command.step);
    case StepAct::ClickKey:
        return ShowKeyClick(command.step, ClickKey(tune, command.step, command.pitch));
    case StepAct::MovePitch:
        return ShowKeyClick(command.step, MovePitch(tune, command.step, command.amount));
    case StepAct::ClickStrip:
        return UseStrip(command);
    case StepAct::ChooseBeat:
        return ChooseStepBeat(command.step);
    case StepAct::PlayStep:
        return plays.PlayStep(command.step);
    case StepAct::PlayBeat:
        return plays.PlayBeat(command.step);
    case StepAct::StretchBar:
        return static_cast<void>(StretchBar(command.step, command.amount));
    case StepAct::UseMenu:
        return UseMenu(command.step, command.item);
    case StepAct::OpenMenu:
    case StepAct::WalkTo:
    case StepAct::None:
        return;
    }
}

void StepCommands::ToggleLamp(std::int32_t step)
{
    ToggleStep(Shared().CurrentTune, step);
    ShowEdited();
    plays.PlayTune(kTuneLeadIn);
}

void StepCommands::ShowKeyClick(std::int32_t step, KeyClick click)
{
    if (click.changed)
        ShowEdited();
    if (click.plays)
        plays.PlayStep(step);
}

void StepCommands::UseStrip(const StepCommand& command)
{
    if (ClickStrip(Shared().CurrentTune, command.step, command.part, command.amount))
        ShowEdited();
    plays.PlayStep(command.step);
}

void StepCommands::ChooseStepBeat(std::int32_t step)
{
    Tune& tune = Shared().CurrentTune;
    surface.DrawIconPressed(step);
    std::string name = At(tune.Steps, step).StepBeat.Name;
    if (TheWindows().ChooseBeat(name)) {
        ChangeStepBeat(tune, step, BeatOfFile(At(tune.Steps, step).StepBeat, name));
        Q_EMIT TuneEdited();
    }
    draw(); // this also raises the icon
}

bool StepCommands::StretchBar(std::int32_t step, std::int32_t pixels)
{
    Tune& tune = Shared().CurrentTune;
    // Clears no flag: the step sounds as it was last rendered.
    if (step > tune.StepCount || !DragDuration(At(tune.Steps, step), pixels))
        return false;
    draw();
    plays.PlayStep(step);
    return true;
}

void StepCommands::UseMenu(std::int32_t step, StepMoveMnu item)
{
    const StepMenuRefusal refusal = ApplyStepMenu(Shared().CurrentTune, step, item);
    if (refusal.IsRefusal())
        ShowMessage(refusal.line1, refusal.line2, refusal.title);
    else
        ShowEdited();
}

void StepCommands::ChangeAll()
{
    Tune& tune = Shared().CurrentTune;
    if (tune.StepCount < 1)
        return ShowMessage(Words::Text("Set the number of steps and try."));
    std::string name;
    if (!TheWindows().ChooseBeat(name) || name.empty())
        return;
    ChangeAllBeats(tune, BeatOfFile(At(tune.Steps, 1).StepBeat, name));
    ShowEdited();
}

void StepCommands::ShowEdited()
{
    Q_EMIT TuneEdited();
    draw();
    // The sound may have to be rendered first; show the click before that.
    surface.repaint();
}

} // namespace sprout
