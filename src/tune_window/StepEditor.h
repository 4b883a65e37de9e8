// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace sprout {

/// The editing half of the tune window: `CurrentTune` as a row of step columns (`TunFramPic`) with its scroll bar, the
/// number of steps, "Change All" and the marks of the step that plays.
class StepEditor : public QWidget {
    Q_OBJECT

public:
    explicit StepEditor(QWidget* parent);

    /// Shows `CurrentTune` from its first step.
    void UpdateThisTune();

    /// Plays `CurrentTune`, rendered if it must be, behind `leadIn` (>= 0) seconds of silence, and follows it with the
    /// play marks.
    void PlayCurrentTune(float leadIn);

    /// Follows the sound in play with the play marks.
    void EnablePlayPosTimer();
    void HidePlayMarks();

Q_SIGNALS:
    /// `CurrentTune` was edited.
    void TuneEdited();
};

} // namespace sprout
