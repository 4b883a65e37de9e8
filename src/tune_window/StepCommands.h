// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <cstdint>
#include <functional>
#include <string>

#include "tune_window/rules/StepCommand.h"
#include "tune_window/rules/StepEdits.h"

namespace sprout {

class EditorPlays;
class TunFramPic;

/// Carries out what the user asks of the steps of `CurrentTune`: edits the tune, shows it and plays what was edited.
class StepCommands : public QObject {
    Q_OBJECT

public:
    /// onDraw: draws the tune on the surface and what lies on it.
    StepCommands(TunFramPic& onSurface, EditorPlays& ofEditor, std::function<void()> onDraw);

    /// Does nothing for a menu to open and for a step to focus. command: of a step of the tune.
    void Do(const StepCommand& command);

    /// Moves the end of a step's bar and plays the step. Returns whether the step has changed.
    bool StretchBar(std::int32_t step, std::int32_t pixels);

    void UseMenu(std::int32_t step, StepMoveMnu item);

    /// Lets the user choose one instrument for all steps.
    void ChangeAll();

    /// Shows the edited tune at once: its sound may have to be rendered first.
    void ShowEdited();

Q_SIGNALS:
    /// `CurrentTune` was edited.
    void TuneEdited();

private:
    void ToggleLamp(std::int32_t step);
    void ShowKeyClick(std::int32_t step, KeyClick click);
    void UseStrip(const StepCommand& command);
    void ChooseStepBeat(std::int32_t step);

    TunFramPic& surface;
    EditorPlays& plays;
    std::function<void()> draw;
};

} // namespace sprout
