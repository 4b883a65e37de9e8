// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepPlays.h"

#include "sound/PlayMod.h"
#include "sound/TuneRender.h"

namespace sprout {

namespace {

constexpr std::string_view kTuneStatus = "Playing Tune";

/// Returns whether the step has a sound.
bool RenderIfStale(TuneStep& step)
{
    if (!step.StepWaveValid) {
        step.StepWave = RenderOwnBeatStep(step);
        step.StepWaveValid = step.StepWave.Length > 0;
    }
    return step.StepWaveValid;
}

} // namespace

void PlayStepSound(TuneStep& step)
{
    if (RenderIfStale(step))
        PlayWaveStatus(step.StepWave, "Playing Beat", Loop::No);
}

void PlayStepBeat(TuneStep& step)
{
    if (RenderIfStale(step) && step.StepBeat.Loaded)
        PlayWaveStatus(step.StepBeat.Sound, "Playing Step", Loop::No);
}

void PlayEditedTune(Tune& tune, float leadInSeconds)
{
    if (!tune.TuneWaveValid)
        RenderTuneCycle(tune);
    if (leadInSeconds > 0)
        PlayWaveDelayed(tune.TuneWave, leadInSeconds, kTuneStatus, Loop::No);
    else
        PlayWaveStatus(tune.TuneWave, kTuneStatus, Loop::No);
}

} // namespace sprout
