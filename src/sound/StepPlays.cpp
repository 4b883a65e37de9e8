// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StepPlays.h"

#include "core/rendered/Rendered.h"
#include "sound/PlayMod.h"
#include "sound/TuneRender.h"

namespace sprout {

namespace {

constexpr LaterWords kTuneStatus = Words::Later("Playing Tune");

/// Returns whether the step has a sound.
bool RenderIfStale(TuneStep& step)
{
    if (!step.StepWaveValid) {
        WaveData wave = RenderOwnBeatStep(step);
        if (wave.Length > 0)
            Rendered::KeepStepWave(step, std::move(wave));
        else
            step.StepWave = std::move(wave);
    }
    return step.StepWaveValid;
}

} // namespace

void PlayStepSound(TuneStep& step)
{
    if (RenderIfStale(step))
        PlayWaveStatus(step.StepWave, Words::Text("Playing Beat"), Loop::No);
}

void PlayStepBeat(TuneStep& step)
{
    if (RenderIfStale(step) && step.StepBeat.Loaded)
        PlayWaveStatus(step.StepBeat.Sound, Words::Text("Playing Step"), Loop::No);
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
