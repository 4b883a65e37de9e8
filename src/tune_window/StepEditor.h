// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tune_window/rules/StepEdits.h"
#include "tune_window/rules/StepLayout.h"
#include "tune_window/rules/StepMenu.h"
#include "tune_window/rules/StepPointer.h"
#include "ui/Hints.h"

class QComboBox;
class QKeyEvent;
class QLabel;
class QMenu;
class QScrollBar;

namespace sprout {

class ArtImage;
class StepFocus;
class TunFramPic;

/// The editing half of the tune window: `CurrentTune` as a row of step columns (`TunFramPic`) with its scroll bar, the
/// number of steps, "Change All" and the marks of the playing step.
class StepEditor : public QWidget {
    Q_OBJECT

public:
    explicit StepEditor(QWidget* parent);

    /// Shows `CurrentTune`, starting at its first step.
    void UpdateThisTune();

    /// Plays `CurrentTune` after `leadIn` (>= 0) seconds of silence, rendering it first if needed, and follows it with
    /// the play marks.
    void PlayCurrentTune(float leadIn);

    /// Makes the play marks follow the current sound.
    void EnablePlayPosTimer();
    void HidePlayMarks();

    /// How an instrument is chosen, like `ChooseBeat` of the beat window.
    using BeatChooser = std::function<bool(std::string& name)>;
    void SetBeatChooser(BeatChooser chooser) { chooseBeat = std::move(chooser); }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// `CurrentTune` was edited.
    void TuneEdited();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeTunFramPic();
    void MakeDummyDuration();
    void MakePlayMarks();
    void MakeChangeAll();
    void MakeStepNosCmb();
    void MakeTunFramHScroll();
    void MakeStepPopMnu();

    void SyncStepCombo();
    void SetStepScroll();
    void DrawTuneSteps();
    void SyncStepFocus();
    [[nodiscard]] const std::string& NameForPeople(const std::string& beat);
    [[nodiscard]] StepFocus* MakeStepFocus(std::int32_t step);
    void SetTabStep(std::int32_t step);
    void RunOnStep(std::int32_t step, const std::function<void()>& command);
    void PlaceChangeAll();
    void PlacePlayMarks();
    void ShowEdited();

    void PressSurface(QPoint place, Qt::MouseButton button);
    void PressLamp(std::int32_t step, QPoint place, Qt::MouseButton button);
    void PressKey(std::int32_t step, QPoint place, Qt::MouseButton button);
    void PressStrip(std::int32_t step, QPoint place, Qt::MouseButton button);
    void ReleaseSurface(QPoint place, Qt::MouseButton button);
    void MoveOnSurface(QPoint place, Qt::MouseButtons held);
    void ShowPointer(const StepPointer& pointer);
    void OfferHandle(QPoint place);

    [[nodiscard]] bool IsOnHandle(QPoint place) const;
    void BeginDrag(QPoint place);
    void DragTo(QPoint place);
    bool StretchBar(std::int32_t step, std::int32_t pixels);

    void PressStepKey(std::int32_t step, QKeyEvent& event);
    void PressOnStepKey(std::int32_t step, QKeyEvent& event);
    void WalkTo(std::int32_t step);
    void BringIntoView(std::int32_t step);

    void ToggleLamp(std::int32_t step);
    void ShowKeyClick(std::int32_t step, KeyClick click);
    void ChooseStepBeat(std::int32_t step);
    void OpenStepMenu(std::int32_t step, QPoint place);
    void DoStepMenu(std::int32_t step, StepMoveMnu item);
    void ClickStepNos(int index);
    [[nodiscard]] std::int32_t AskStepCount();
    void ClickChangeAll();

    void PlayStep(std::int32_t step);
    void PlayBeat(std::int32_t step);
    void TickPlayPos();

    std::map<std::string, std::string> namesForPeople; ///< of the tune's beats; each is looked up in the folder once

    TunFramPic* surface = nullptr;
    QWidget* DummyDuration = nullptr;
    ArtImage* PlayingStepImg = nullptr;
    ArtImage* PlayingOnStepImg = nullptr;
    QWidget* ChangeAllBtn = nullptr;
    QLabel* NoteInstrLbl = nullptr;
    QLabel* NotePianoLbl = nullptr;
    QComboBox* StepNosCmb = nullptr;
    QScrollBar* TunFramHScroll = nullptr;
    QMenu* StepPopMnu = nullptr;
    QTimer PlayPosTimer;
    HintWatcher hints{this};
    std::vector<StepFocus*> stepFocus{nullptr}; ///< by step, from 1
    std::int32_t tabStep = 1;                   ///< the only step that the Tab key stops at: the last one reached
    BeatChooser chooseBeat;
    QCursor pianoCursor;

    std::int32_t StepsLeft = kStepsLeftAtStart;
    bool ScrollGuard2 = false; ///< the program is setting `TunFramHScroll`
    bool DurationDragging = false;
    std::int32_t handleStep = 0; ///< the step whose bar `DummyDuration` is on
    std::int32_t DragStartX = 0;
    QPoint iconDown{-1, -1}; ///< where the mouse went down on the icon row; elsewhere if it did not
    std::int32_t LastPlayStep = 1;
    std::int32_t lastOnStep = 1; ///< under `PlayingOnStepImg`
};

} // namespace sprout
