// SPDX-License-Identifier: GPL-3.0-or-later
#include <QKeyEvent>
#include <QMenu>

#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "tune_window/StepEditor.h"
#include "tune_window/StepFocus.h"
#include "tune_window/TunFramPic.h"
#include "tune_window/rules/StepEdits.h"
#include "ui/Dialogs.h"
#include "ui/QtText.h"
#include "ui/QtTip.h"

namespace sprout {

namespace {

bool IsArrow(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

bool IsOn(std::int32_t step)
{
    return At(Shared().CurrentTune.Steps, step).IsOn();
}

} // namespace

void StepEditor::PressSurface(QPoint place, Qt::MouseButton button)
{
    if (IsOnHandle(place))
        return BeginDrag(place);
    iconDown = QPoint(-1, -1);
    const StepZone zone = StepZoneAt(place.y());
    if (zone == StepZone::Icon)
        iconDown = place;
    const std::int32_t step = StepAt(place.x(), StepsLeft, Shared().CurrentTune.StepCount);
    if (step == 0)
        return;
    if (zone == StepZone::Lamp)
        return PressLamp(step, place, button);
    if (!IsOn(step))
        return;
    if (IsOctave(zone))
        PressKey(step, place, button);
    else if (zone == StepZone::Strip)
        PressStrip(step, place, button);
}

void StepEditor::PressLamp(std::int32_t step, QPoint place, Qt::MouseButton button)
{
    if (button == Qt::LeftButton)
        ToggleLamp(step);
    else if (button == Qt::RightButton)
        OpenStepMenu(step, place);
}

void StepEditor::PressKey(std::int32_t step, QPoint place, Qt::MouseButton button)
{
    if (button == Qt::RightButton)
        return PlayStep(step);
    if (button != Qt::LeftButton)
        return;
    ShowKeyClick(step, ClickKey(Shared().CurrentTune, step, PitchAt(step, StepsLeft, place.x(), place.y())));
}

void StepEditor::PressStrip(std::int32_t step, QPoint place, Qt::MouseButton button)
{
    if (button != Qt::LeftButton && button != Qt::RightButton)
        return;
    const StripPlace part = StripPlaceAt(step, StepsLeft, place.x());
    if (button == Qt::LeftButton && ClickStrip(Shared().CurrentTune, step, part, StripValue(place.y())))
        ShowEdited();
    PlayStep(step);
}

void StepEditor::ReleaseSurface(QPoint place, Qt::MouseButton button)
{
    if (DurationDragging) {
        DurationDragging = false;
        return;
    }
    const std::int32_t count = Shared().CurrentTune.StepCount;
    const std::int32_t step = StepAt(place.x(), StepsLeft, count);
    const bool inOneIcon = step != 0 && StepZoneAt(place.y()) == StepZone::Icon &&
                           StepZoneAt(iconDown.y()) == StepZone::Icon && StepAt(iconDown.x(), StepsLeft, count) == step;
    if (!inOneIcon || !IsOn(step))
        return;
    if (button == Qt::LeftButton)
        ChooseStepBeat(step);
    else if (button == Qt::RightButton)
        PlayBeat(step);
}

void StepEditor::MoveOnSurface(QPoint place, Qt::MouseButtons held)
{
    // A message that appeared meanwhile has received the release.
    if (held == Qt::NoButton)
        DurationDragging = false;
    if (DurationDragging)
        return DragTo(place);
    if (!IsOnHandle(place)) {
        ShowPointer(PointerOverSteps(Shared().CurrentTune, StepsLeft, place.x(), place.y()));
        OfferHandle(place);
    }
    if (IsOnHandle(place))
        surface->setCursor(Qt::SizeHorCursor);
}

void StepEditor::ShowPointer(const StepPointer& pointer)
{
    ShowHint(QtText(pointer.hint));
    surface->setToolTip(QtTip(pointer.beat.empty() ? std::string(pointer.toolTip) : NameForPeople(pointer.beat)));
    if (pointer.cursor == StepCursor::PianoCursorImg)
        surface->setCursor(pianoCursor);
    else
        surface->unsetCursor();
}

void StepEditor::OfferHandle(QPoint place)
{
    if (!IsOctave(StepZoneAt(place.y())))
        return;
    const std::vector<DurationBar>& bars = surface->DurationBars();
    const std::int32_t step = BarAt(bars, Shared().CurrentTune, place.x(), place.y());
    if (step == 0)
        return;
    handleStep = step;
    DummyDuration->move(At(bars, step).handleX, At(bars, step).handleY);
    DummyDuration->show();
}

bool StepEditor::IsOnHandle(QPoint place) const
{
    return !DummyDuration->isHidden() && DummyDuration->geometry().contains(place);
}

void StepEditor::BeginDrag(QPoint place)
{
    DurationDragging = true;
    DragStartX = place.x();
    DummyDuration->hide();
}

void StepEditor::DragTo(QPoint place)
{
    if (StretchBar(handleStep, place.x() - DragStartX))
        DragStartX = place.x();
}

bool StepEditor::StretchBar(std::int32_t step, std::int32_t pixels)
{
    Tune& tune = Shared().CurrentTune;
    // Clears no flag: the step sounds as it was last rendered.
    if (step > tune.StepCount || !DragDuration(At(tune.Steps, step), pixels))
        return false;
    DrawTuneSteps();
    PlayStep(step);
    return true;
}

void StepEditor::PressStepKey(std::int32_t step, QKeyEvent& event)
{
    event.accept();
    // A held key would render, or delete, again and again.
    if (event.isAutoRepeat() && !IsArrow(event.key()))
        return;
    switch (event.key()) {
    case Qt::Key_Space:
        ToggleLamp(step);
        return BringIntoView(step); // playing has scrolled back to step 1
    case Qt::Key_Home:
        return WalkTo(1);
    case Qt::Key_End:
        return WalkTo(static_cast<std::int32_t>(stepFocus.size()) - 1);
    case Qt::Key_Insert:
        return DoStepMenu(step, StepMoveMnu::InsertStep);
    case Qt::Key_Delete:
        return DoStepMenu(step, StepMoveMnu::DeleteStep);
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const std::int32_t direction = event.key() == Qt::Key_Left ? -1 : 1;
        if (!event.modifiers().testFlag(Qt::ShiftModifier))
            return WalkTo(step + direction);
        if (IsOn(step))
            StretchBar(step, direction);
        return;
    }
    default:
        PressOnStepKey(step, event);
    }
}

void StepEditor::PressOnStepKey(std::int32_t step, QKeyEvent& event)
{
    const bool isOn = IsOn(step);
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (isOn)
            ShowKeyClick(step, MovePitch(Shared().CurrentTune, step, event.key() == Qt::Key_Up ? 1 : -1));
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (isOn)
            ChooseStepBeat(step);
        return;
    case Qt::Key_P:
        if (isOn)
            PlayStep(step);
        return;
    case Qt::Key_B:
        if (isOn)
            PlayBeat(step);
        return;
    default:
        event.ignore();
    }
}

void StepEditor::WalkTo(std::int32_t step)
{
    if (step >= 1 && step < static_cast<std::int32_t>(stepFocus.size()))
        At(stepFocus, step)->setFocus(Qt::TabFocusReason);
}

void StepEditor::ToggleLamp(std::int32_t step)
{
    ToggleStep(Shared().CurrentTune, step);
    ShowEdited();
    PlayCurrentTune(kEditLeadIn);
}

void StepEditor::ShowKeyClick(std::int32_t step, KeyClick click)
{
    if (click.changed)
        ShowEdited();
    if (click.plays)
        PlayStep(step);
}

void StepEditor::ChooseStepBeat(std::int32_t step)
{
    Tune& tune = Shared().CurrentTune;
    surface->DrawIconPressed(step);
    std::string name = At(tune.Steps, step).StepBeat.Name;
    if (chooseBeat(name)) {
        ChangeStepBeat(tune, step, BeatOfFile(At(tune.Steps, step).StepBeat, name));
        Q_EMIT TuneEdited();
    }
    DrawTuneSteps(); // this also raises the icon
}

void StepEditor::OpenStepMenu(std::int32_t step, QPoint place)
{
    for (QAction* const action : StepPopMnu->actions())
        if (!action->isSeparator())
            action->setEnabled(StepMenuItemEnabled(static_cast<StepMoveMnu>(action->data().toInt()),
                                                   At(Shared().CurrentTune.Steps, step)));
    const QAction* const chosen = StepPopMnu->exec(surface->mapToGlobal(place));
    if (chosen)
        DoStepMenu(step, static_cast<StepMoveMnu>(chosen->data().toInt()));
}

void StepEditor::DoStepMenu(std::int32_t step, StepMoveMnu item)
{
    const StepMenuRefusal refusal = ApplyStepMenu(Shared().CurrentTune, step, item);
    if (refusal.IsRefusal())
        ShowMessage(refusal.line1, refusal.line2, refusal.title);
    else
        ShowEdited();
}

} // namespace sprout
