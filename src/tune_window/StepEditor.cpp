// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/StepEditor.h"

#include <QKeyEvent>

#include <algorithm>
#include <optional>

#include "core/Shared.h"
#include "tune_window/ChangeAllPart.h"
#include "tune_window/DurationHandle.h"
#include "tune_window/EditorPlays.h"
#include "tune_window/StepFocusRow.h"
#include "tune_window/StepKeys.h"
#include "tune_window/StepNosBox.h"
#include "tune_window/StepPopMenu.h"
#include "tune_window/StepScrollBar.h"
#include "tune_window/TunFramPic.h"
#include "ui/forms/Guarded.h"
#include "ui/look/Artwork.h"
#include "ui/widgets/Hints.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr int kSurfaceHeight = 304;
constexpr int kUsualWidth = 740;
constexpr int kBottomRowGap = 6;
constexpr int kBottomRowHeight = 36;
constexpr QSize kEditorSize{kUsualWidth, kSurfaceHeight + kBottomRowGap + kBottomRowHeight};
constexpr int kComboWidth = 132;
constexpr int kScrollHeight = 18;
constexpr QSize kPianoCursorSize{32, 32};
constexpr QPoint kPianoCursorTip{9, 3};
constexpr QPoint kNowhere{-1, -1};

StepButton ButtonOf(Qt::MouseButton button)
{
    return button == Qt::LeftButton    ? StepButton::Left
           : button == Qt::RightButton ? StepButton::Right
                                       : StepButton::Other;
}

StepPoint PointOf(QPoint place)
{
    return {place.x(), place.y()};
}

} // namespace

StepEditor::StepEditor(QWidget* parent) : QWidget(parent)
{
    StepNosCmb = new StepNosBox(this);
    MakeTunFramPic();
    MakeParts();
    MakeStepFocus();
    setFocusProxy(StepNosCmb);
    resize(kEditorSize);
}

QSize StepEditor::sizeHint() const
{
    return kEditorSize;
}

void StepEditor::MakeTunFramPic()
{
    surface = new TunFramPic(this);
    SetSpokenName(*surface, Words::Text("Steps of the tune"));
    pianoCursor = QCursor(Artwork(QStringLiteral("pictures/PianoCursorImg"), kPianoCursorSize, devicePixelRatioF()),
                          kPianoCursorTip.x(), kPianoCursorTip.y());
    connect(surface, &TunFramPic::Pressed, this,
            [this](QPoint place, Qt::MouseButton button) { Guarded([&] { PressSurface(place, button); }); });
    connect(surface, &TunFramPic::Released, this,
            [this](QPoint place, Qt::MouseButton button) { Guarded([&] { ReleaseSurface(place, button); }); });
    connect(surface, &TunFramPic::Moved, this,
            [this](QPoint place, Qt::MouseButtons held) { Guarded([&] { MoveOnSurface(place, held); }); });
    connect(surface, &TunFramPic::Wheeled, this,
            [this](int pixels) { TunFramHScroll->setValue(TunFramHScroll->value() + pixels); });
    connect(surface, &TunFramPic::Resized, this, [this] { Guarded([this] { UpdateThisTune(); }); });
}

void StepEditor::MakeParts()
{
    changeAll = new ChangeAllPart(surface);
    DummyDuration = new DurationHandle(surface);
    plays = new EditorPlays(surface);
    commands = new StepCommands(*surface, *plays, [this] { DrawTuneSteps(); });
    TunFramHScroll = new StepScrollBar(this);
    StepPopMnu = new StepPopMenu(this);
    connect(commands, &StepCommands::TuneEdited, this, &StepEditor::TuneEdited);
    connect(StepNosCmb, &StepNosBox::StepCountWanted, this,
            [this](std::int32_t count) { Guarded([&] { TakeStepCount(count); }); });
    connect(changeAll, &ChangeAllPart::Clicked, this, [this] { Guarded([this] { commands->ChangeAll(); }); });
    connect(TunFramHScroll, &StepScrollBar::Scrolled, this, [this] { Guarded([this] { DrawTuneSteps(); }); });
}

void StepEditor::MakeStepFocus()
{
    stepFocus = new StepFocusRow(surface, StepNosCmb, &changeAll->ChangeAllBtn());
    connect(stepFocus, &StepFocusRow::KeyPressed, this,
            [this](std::int32_t step, QKeyEvent* event) { RunOnStep(step, [&] { PressStepKey(step, *event); }); });
    connect(stepFocus, &StepFocusRow::MenuWanted, this, [this](std::int32_t step) {
        RunOnStep(step, [&] { OpenStepMenu(step, QPoint(StepLeft(step, TunFramHScroll->StepsLeft()), kNumberTop)); });
    });
    connect(stepFocus, &StepFocusRow::Clicked, this, [this](std::int32_t step) {
        RunOnStep(step, [&] { commands->Do({.act = StepAct::ToggleLamp, .step = step}); });
    });
    connect(stepFocus, &StepFocusRow::Reached, this, [this](std::int32_t step) { BringIntoView(step); });
}

void StepEditor::resizeEvent(QResizeEvent* /*event*/)
{
    const int surfaceHeight = std::max(height() - kBottomRowGap - kBottomRowHeight, kSurfaceHeight);
    const int rowTop = surfaceHeight + kBottomRowGap;
    StepNosCmb->setGeometry(0, rowTop, kComboWidth, kBottomRowHeight);
    TunFramHScroll->setGeometry(kComboWidth + 2 * kBottomRowGap, rowTop + (kBottomRowHeight - kScrollHeight) / 2,
                                width() - kComboWidth - 2 * kBottomRowGap, kScrollHeight);
    surface->setGeometry(0, 0, width(), surfaceHeight);
}

void StepEditor::UpdateThisTune()
{
    beatNames.Forget();
    StepNosCmb->SyncStepCombo();
    SetStepScroll();
    DrawTuneSteps();
}

void StepEditor::SetStepScroll()
{
    TunFramHScroll->SetStepScroll(Shared().CurrentTune.StepCount, surface->width());
}

void StepEditor::DrawTuneSteps()
{
    const Tune& tune = Shared().CurrentTune;
    const std::int32_t stepsLeft = TunFramHScroll->StepsLeft();
    SetToolTip(*surface, {});
    surface->DrawTuneSteps(tune, stepsLeft);
    if (!DummyDuration->IsDragged())
        DummyDuration->hide();
    stepFocus->ShowTune(tune, beatNames, stepsLeft);
    changeAll->ShowTune(tune, stepsLeft);
    plays->PlacePlayMarks(stepsLeft);
}

void StepEditor::BringIntoView(std::int32_t step)
{
    TunFramHScroll->BringIntoView(step, surface->width());
}

void StepEditor::PlayCurrentTune(float leadIn)
{
    plays->PlayTune(leadIn);
}

void StepEditor::HidePlayMarks()
{
    plays->HidePlayMarks();
}

void StepEditor::PressSurface(QPoint place, Qt::MouseButton button)
{
    if (DummyDuration->IsAt(place))
        return DummyDuration->BeginDrag(place);
    iconDown = StepZoneAt(place.y()) == StepZone::Icon ? place : kNowhere;
    const StepCommand command =
        CommandOfPress(Shared().CurrentTune, TunFramHScroll->StepsLeft(), PointOf(place), ButtonOf(button));
    if (command.act == StepAct::OpenMenu)
        OpenStepMenu(command.step, place);
    else
        commands->Do(command);
}

void StepEditor::ReleaseSurface(QPoint place, Qt::MouseButton button)
{
    if (DummyDuration->EndDrag())
        return;
    commands->Do(CommandOfRelease(Shared().CurrentTune, TunFramHScroll->StepsLeft(), PointOf(iconDown), PointOf(place),
                                  ButtonOf(button)));
}

void StepEditor::MoveOnSurface(QPoint place, Qt::MouseButtons held)
{
    // A message that appeared meanwhile has received the release.
    if (held == Qt::NoButton)
        DummyDuration->EndDrag();
    if (DummyDuration->IsDragged()) {
        if (commands->StretchBar(DummyDuration->Step(), DummyDuration->DraggedBy(place)))
            DummyDuration->HoldAt(place);
        return;
    }
    const Tune& tune = Shared().CurrentTune;
    if (!DummyDuration->IsAt(place)) {
        ShowPointer(PointerOverSteps(tune, TunFramHScroll->StepsLeft(), place.x(), place.y()));
        DummyDuration->OfferAt(place, surface->DurationBars(), tune);
    }
    if (DummyDuration->IsAt(place))
        surface->setCursor(Qt::SizeHorCursor);
}

void StepEditor::ShowPointer(const StepPointer& pointer)
{
    ShowHint(pointer.hint);
    SetToolTip(*surface, pointer.beat.empty() ? pointer.toolTip : Words::AsIs(beatNames.NameForPeople(pointer.beat)));
    if (pointer.cursor == StepCursor::PianoCursorImg)
        surface->setCursor(pianoCursor);
    else
        surface->unsetCursor();
}

void StepEditor::RunOnStep(std::int32_t step, const std::function<void()>& command)
{
    // A tune that is not shown yet may have fewer steps than the visible one.
    if (step <= Shared().CurrentTune.StepCount)
        Guarded(command);
}

void StepEditor::PressStepKey(std::int32_t step, QKeyEvent& event)
{
    const bool isOn = At(Shared().CurrentTune.Steps, step).IsOn();
    const std::optional<StepCommand> command = CommandOfKey(event, step, isOn, stepFocus->LastStep());
    event.setAccepted(command.has_value());
    if (!command)
        return;
    if (command->act == StepAct::WalkTo)
        return stepFocus->WalkTo(command->step);
    commands->Do(*command);
    if (command->act == StepAct::ToggleLamp)
        BringIntoView(step); // playing has scrolled back to step 1
}

void StepEditor::OpenStepMenu(std::int32_t step, QPoint place)
{
    const TuneStep& ofStep = At(Shared().CurrentTune.Steps, step);
    if (const std::optional<StepMoveMnu> chosen = StepPopMnu->Choose(ofStep, surface->mapToGlobal(place)))
        commands->UseMenu(step, *chosen);
}

void StepEditor::TakeStepCount(std::int32_t count)
{
    ChangeStepCount(Shared().CurrentTune, count);
    SetStepScroll();
    commands->ShowEdited();
    PlayCurrentTune(kTuneLeadIn);
}

} // namespace sprout
