// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StepSound.h"

#include <utility>

#include "core/Shared.h"
#include "sound/StretchWave.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace {

/// A step at any volume except 100 is limited to this share of full scale.
constexpr std::int32_t kScaledStepClip = 80;
constexpr std::int32_t kUnchangedVolume = 100;

} // namespace

std::int32_t SongBeatOf(const TuneStep& step, const SongState& song)
{
    if (step.BeatIndex < 1 || step.BeatIndex > song.SongBeatCount)
        return 0;
    if (static_cast<std::size_t>(step.BeatIndex) >= song.SongBeats.size())
        throw RunTimeError(Words::Text("The song has fewer beats than it says."));
    return step.BeatIndex;
}

StepKey KeyOfStep(const TuneStep& step, WaveData instrument)
{
    return {std::move(instrument), PitchFactor(step.PitchShift), DurationFactor(step.Duration), step.Volume};
}

WaveData RenderKey(const StepKey& key)
{
    WaveData wave = key.Source;
    if (wave.Bits != Shared().BitsPerSample || wave.Rate != Shared().SampleRate)
        wave = ConvertWaveFormat(wave, 0, 0);
    wave = StretchWave(wave, key.PitchFactor, key.DurationFactor);
    return key.Volume == kUnchangedVolume ? wave : ScaleWaveVolume(wave, key.Volume, kScaledStepClip);
}

StepLook LookOf(const TuneStep& step, BeatSource source)
{
    const bool own = source == BeatSource::OwnBeat;
    return {own ? 0 : step.BeatIndex, own ? step.StepBeat.Name : std::string(), step.Volume, step.PitchShift,
            step.Duration};
}

} // namespace sprout
