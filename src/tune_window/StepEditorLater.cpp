// SPDX-License-Identifier: GPL-3.0-or-later
// Stands in for the step editor and the beat window until they are merged; goes with that merge.
#include "beat_window/ChooseBeat.h"
#include "tune_window/StepEditor.h"

namespace sprout {

StepEditor::StepEditor(QWidget* parent) : QWidget(parent) {}

void StepEditor::UpdateThisTune() {}

void StepEditor::PlayCurrentTune(float /*leadIn*/) {}

void StepEditor::EnablePlayPosTimer() {}

void StepEditor::HidePlayMarks() {}

bool ChooseBeat(std::string& /*name*/)
{
    return false;
}

} // namespace sprout

#include "moc_StepEditor.cpp"
