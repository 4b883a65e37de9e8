// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCursor>
#include <QWidget>

#include <cstdint>
#include <functional>

#include "tune_window/BeatNames.h"
#include "tune_window/StepCommands.h"
#include "tune_window/rules/StepPointer.h"

class QKeyEvent;

namespace sprout {

class ChangeAllPart;
class DurationHandle;
class EditorPlays;
class StepFocusRow;
class StepNosBox;
class StepPopMenu;
class StepScrollBar;
class TunFramPic;

/// The editing half of the tune window: `CurrentTune` as a row of step columns (`TunFramPic`) with its scroll bar, the
/// number of steps, "Change All" and the marks of the playing step. It turns events of the mouse and the keys into
/// commands (`StepCommands`).
class StepEditor : public QWidget {
    Q_OBJECT

public:
    explicit StepEditor(QWidget* parent);

    /// Shows `CurrentTune`, starting at its first step.
    void UpdateThisTune();

    /// Plays `CurrentTune` after `leadIn` (>= 0) seconds of silence, rendering it first if needed, and follows it with
    /// the play marks.
    void PlayCurrentTune(float leadIn);

    void HidePlayMarks();

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// `CurrentTune` was edited.
    void TuneEdited();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void MakeTunFramPic();
    void MakeParts();
    void MakeStepFocus();

    void SetStepScroll();
    void DrawTuneSteps();

    void PressSurface(QPoint place, Qt::MouseButton button);
    void ReleaseSurface(QPoint place, Qt::MouseButton button);
    void MoveOnSurface(QPoint place, Qt::MouseButtons held);
    void ShowPointer(const StepPointer& pointer);
    void RunOnStep(std::int32_t step, const std::function<void()>& command);
    void PressStepKey(std::int32_t step, QKeyEvent& event);
    void BringIntoView(std::int32_t step);

    void OpenStepMenu(std::int32_t step, QPoint place);
    void TakeStepCount(std::int32_t count);

    StepNosBox* StepNosCmb = nullptr;
    TunFramPic* surface = nullptr;
    ChangeAllPart* changeAll = nullptr;
    DurationHandle* DummyDuration = nullptr;
    EditorPlays* plays = nullptr;
    StepCommands* commands = nullptr;
    StepScrollBar* TunFramHScroll = nullptr;
    StepPopMenu* StepPopMnu = nullptr;
    StepFocusRow* stepFocus = nullptr;
    BeatNames beatNames;
    QCursor pianoCursor;
    QPoint iconDown{-1, -1}; ///< where the mouse went down on the icon row; elsewhere if it did not
};

} // namespace sprout
