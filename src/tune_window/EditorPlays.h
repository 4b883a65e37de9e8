// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <cstdint>

#include "tune_window/rules/StepLayout.h"

class QWidget;

namespace sprout {

class ArtImage;

/// The plays of the step editor: `CurrentTune`, its steps and their beats. While the tune plays, two marks over the
/// lamps follow it: `PlayingStepImg` each step, `PlayingOnStepImg` those that are on.
class EditorPlays : public QObject {
    Q_OBJECT

public:
    explicit EditorPlays(QWidget* surface);

    /// Plays the tune after `leadIn` (>= 0) seconds of silence, rendering it first if needed, and follows it.
    void PlayTune(float leadIn);
    /// Plays a step, or its beat as it is in its file. step: of the tune.
    void PlayStep(std::int32_t step);
    void PlayBeat(std::int32_t step);

    /// The marks disappear and no longer follow.
    void HidePlayMarks();

    /// Moves the marks to where their steps are. newStepsLeft: left edge of step 1.
    void PlacePlayMarks(std::int32_t newStepsLeft);

private:
    void TickPlayPos();

    ArtImage* PlayingStepImg;
    ArtImage* PlayingOnStepImg;
    QTimer PlayPosTimer{this};
    std::int32_t stepsLeft = kStepsLeftAtStart;
    std::int32_t LastPlayStep = 1;
    std::int32_t lastOnStep = 1; ///< under `PlayingOnStepImg`
};

} // namespace sprout
