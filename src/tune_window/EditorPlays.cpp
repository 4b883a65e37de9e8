// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/EditorPlays.h"

#include <chrono>

#include "core/Shared.h"
#include "sound/PlayMod.h"
#include "sound/StepPlays.h"
#include "tune_window/ArtImage.h"
#include "ui/forms/Guarded.h"

namespace sprout {

namespace {

constexpr QSize kMarkSize{30, 16};
constexpr std::chrono::milliseconds kPlayMarksInterval{40};

} // namespace

EditorPlays::EditorPlays(QWidget* surface)
    : QObject(surface),
      PlayingStepImg(new ArtImage("PlayingStepImg", kMarkSize, surface)),
      PlayingOnStepImg(new ArtImage("PlayingOnStepImg", kMarkSize, surface))
{
    PlayPosTimer.setObjectName(QStringLiteral("PlayPosTimer"));
    PlayPosTimer.setInterval(kPlayMarksInterval);
    connect(&PlayPosTimer, &QTimer::timeout, this, [this] { Guarded([this] { TickPlayPos(); }); });
    HidePlayMarks();
}

void EditorPlays::PlayTune(float leadIn)
{
    PlayEditedTune(Shared().CurrentTune, leadIn);
    PlayPosTimer.start();
}

void EditorPlays::PlayStep(std::int32_t step)
{
    HidePlayMarks();
    PlayStepSound(At(Shared().CurrentTune.Steps, step));
}

void EditorPlays::PlayBeat(std::int32_t step)
{
    HidePlayMarks();
    PlayStepBeat(At(Shared().CurrentTune.Steps, step));
}

void EditorPlays::HidePlayMarks()
{
    PlayPosTimer.stop();
    LastPlayStep = 1;
    PlayingStepImg->hide();
    PlayingOnStepImg->hide();
}

void EditorPlays::TickPlayPos()
{
    Player().UpdatePlayPosition();
    const PlayModState& play = PlayShared();
    const Tune& tune = Shared().CurrentTune;
    const bool plays = play.PlayState == PlayState::Playing || play.PlayState == PlayState::PlayingLoop;
    if (!plays || tune.StepCount < 1)
        return HidePlayMarks();
    LastPlayStep = StepInPlay(play, Shared().Song.Tempo, tune.StepCount);
    PlayingStepImg->show();
    // The mark of an on-step stays until the next on-step plays.
    if (At(tune.Steps, LastPlayStep).IsOn()) {
        lastOnStep = LastPlayStep;
        PlayingOnStepImg->show();
    }
    PlacePlayMarks(stepsLeft);
}

void EditorPlays::PlacePlayMarks(std::int32_t newStepsLeft)
{
    stepsLeft = newStepsLeft;
    PlayingStepImg->move(StepLeft(LastPlayStep, stepsLeft), kLampTop);
    PlayingOnStepImg->move(StepLeft(lastOnStep, stepsLeft), kLampTop);
}

} // namespace sprout
