// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/TuneRender.h"

#include <cstddef>
#include <exception>
#include <vector>

#include "core/Busy.h"
#include "core/Shared.h"
#include "core/SongTime.h"
#include "core/rendered/Rendered.h"
#include "sound/Mixer.h"
#include "sound/QuietRender.h"
#include "sound/StepBatch.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace {

constexpr std::int32_t kCycleClip = 80;

WaveData RenderOne(TuneStep& step, BeatSource source)
{
    const Hourglass hourglass;
    return QuietRender([&] {
        StepBatch batch(SharedSetting());
        batch.AddStep(step, source);
        batch.Render();
        return step.StepWave;
    });
}

/// One silent frame.
WaveData SilentFrame()
{
    WaveData wave = EmptyWave();
    wave.Length = 1;
    wave.WavL = Channel(1);
    wave.WavR = wave.WavL;
    return wave;
}

WaveData MixCycle(const Tune& tune)
{
    const std::int32_t tempo = Shared().Song.Tempo;
    const std::int32_t rate = Shared().SampleRate;
    std::vector<WaveData> waves{SilentFrame()};
    std::vector<WaveFilePlacement> placements;
    for (std::int32_t number = 1; number <= tune.StepCount; ++number) {
        const TuneStep& step = At(tune.Steps, number);
        waves.push_back(step.IsOn() ? step.StepWave : EmptyWave());
        if (step.IsOn())
            placements.push_back({CellOffset(number, 1, tempo, rate), number});
    }
    // The silent frame after the last cell extends the wave to a whole cycle, however short the last sound is.
    placements.push_back({CellOffset(tune.StepCount, 0, tempo, rate), 0});
    return MixWaves(std::move(waves), placements, 100, 0, kCycleClip);
}

WaveData RenderCycle(Tune& tune, BeatSource source)
{
    const WorkingSign sign;
    return QuietRender([&] {
        StepBatch batch(SharedSetting());
        batch.AddTune(tune, source, CopiedStep::Valid);
        batch.Render();
        return MixCycle(tune);
    });
}

} // namespace

WaveData RenderStep(const TuneStep& step)
{
    TuneStep rendered = step;
    return RenderOne(rendered, BeatSource::Song);
}

WaveData RenderOwnBeatStep(TuneStep& step)
{
    TuneStep rendered = step;
    WaveData wave = RenderOne(rendered, BeatSource::OwnBeat);
    step.StepBeat = std::move(rendered.StepBeat); // it may have been loaded
    return wave;
}

void RenderStarCycle(Tune& tune)
{
    Rendered::KeepTuneWave(tune, RenderCycle(tune, BeatSource::Song));
}

void RenderTuneCycle(Tune& tune)
{
    Rendered::KeepTuneWave(tune, RenderCycle(tune, BeatSource::OwnBeat));
}

void RenderTrackSteps(Tune& tune)
{
    Tune* const one = &tune;
    RenderTrackSteps(std::span(&one, 1), SharedSetting());
}

void RenderTrackSteps(std::span<Tune* const> tunes, const RenderSetting& setting)
{
    StepBatch batch(setting);
    for (Tune* const tune : tunes)
        batch.AddTune(*tune, BeatSource::Song, CopiedStep::StaysAsItIs);
    batch.Render();
}

} // namespace sprout
