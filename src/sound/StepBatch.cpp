// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StepBatch.h"

#include <cstdint>
#include <map>
#include <string>
#include <tuple>

#include "base/Errors.h"
#include "base/Parallel.h"
#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "core/rendered/Rendered.h"
#include "service/Screen.h"
#include "service/Services.h"
#include "sound/RenderThreads.h"
#include "sound/StretchWave.h"
#include "waves/WavOperations.h"
#include "waves/WaveFormat.h"

namespace sprout {

namespace {

/// A step at any volume except 100 is limited to this share of full scale.
constexpr std::int32_t kScaledStepClip = 80;
constexpr std::int32_t kUnchangedVolume = 100;

/// What makes two steps of one tune equal: instrument, volume, pitch and duration.
using StepLook = std::tuple<std::int32_t, std::string, std::int32_t, std::int32_t, std::int32_t>;

StepLook LookOf(const TuneStep& step, BeatSource source)
{
    const bool own = source == BeatSource::OwnBeat;
    return {own ? 0 : step.BeatIndex, own ? step.StepBeat.Name : std::string(), step.Volume, step.PitchShift,
            step.Duration};
}

const WaveData& LoadedSound(Beat& beat)
{
    if (!beat.Loaded)
        ReloadBeat(beat);
    return beat.Sound;
}

WaveData SourceOf(TuneStep& step, BeatSource source)
{
    if (source == BeatSource::OwnBeat)
        return step.StepBeat.Name.empty() ? Shared().TestTone : LoadedSound(step.StepBeat);
    SongState& song = Shared().Song;
    if (step.BeatIndex < 1 || step.BeatIndex > song.SongBeatCount)
        return Shared().TestTone;
    if (static_cast<std::size_t>(step.BeatIndex) >= song.SongBeats.size())
        throw RunTimeError(Words::Text("The song has fewer beats than it says."));
    return LoadedSound(At(song.SongBeats, step.BeatIndex));
}

WaveData RenderKey(const StepKey& key)
{
    WaveData wave = key.Source;
    if (wave.Bits != Shared().BitsPerSample || wave.Rate != Shared().SampleRate)
        wave = ConvertWaveFormat(wave, 0, 0);
    wave = StretchWave(wave, key.PitchFactor, key.DurationFactor);
    return key.Volume == kUnchangedVolume ? wave : ScaleWaveVolume(wave, key.Volume, kScaledStepClip);
}

} // namespace

template <class Plan>
void StepBatch::TryToAdd(Plan plan)
{
    if (addError)
        return;
    try {
        plan();
    } catch (const std::exception&) {
        addError = std::current_exception();
    }
}

void StepBatch::AddTune(Tune& tune, BeatSource source, CopiedStep copies)
{
    TryToAdd([&] { PlanTune(tune, source, copies); });
}

void StepBatch::AddStep(TuneStep& step, BeatSource source)
{
    TryToAdd([&] { PlanSound(step, source); });
}

void StepBatch::PlanTune(Tune& tune, BeatSource source, CopiedStep copies)
{
    if (tune.StepCount < 0 || static_cast<std::size_t>(tune.StepCount) >= tune.Steps.size())
        throw RunTimeError(Words::Text("The tune has fewer steps than it says."));
    std::map<StepLook, const TuneStep*> firstValid; // as it will be when a step's turn comes
    for (std::int32_t number = 1; number <= tune.StepCount; ++number) {
        TuneStep& step = At(tune.Steps, number);
        if (!step.IsOn())
            continue;
        const StepLook look = LookOf(step, source);
        const auto equal = firstValid.find(look);
        if (!step.StepWaveValid && equal != firstValid.end()) {
            planned.push_back({&step, equal->second, 0, copies == CopiedStep::Valid});
            continue;
        }
        if (!step.StepWaveValid)
            PlanSound(step, source);
        firstValid.try_emplace(look, &step);
    }
}

void StepBatch::PlanSound(TuneStep& step, BeatSource source)
{
    planned.push_back({&step, nullptr, SoundOf(step, source), true});
}

std::size_t StepBatch::SoundOf(TuneStep& step, BeatSource source)
{
    Sound sound{{SourceOf(step, source), PitchFactor(step.PitchShift), DurationFactor(step.Duration), step.Volume},
                EmptyWave(),
                nullptr};
    const std::size_t place = sounds.size();
    if (sound.key.Source.Length > 0) {
        if (const auto [known, isNew] = places.try_emplace(sound.key, place); !isNew)
            return known->second;
        if (const WaveData* kept = TheStepCache().Find(sound.key))
            sound.wave = *kept;
        else
            missing.push_back(place);
    }
    sounds.push_back(std::move(sound));
    return place;
}

void StepBatch::Render()
{
    RenderMissing();
    HandOut();
}

void StepBatch::RenderMissing()
{
    const auto work = [this](std::size_t i) {
        Sound& sound = sounds[missing[i]];
        try {
            sound.wave = RenderKey(sound.key);
        } catch (const std::exception&) {
            sound.error = std::current_exception();
        }
    };
    const auto progress = [](std::size_t done, std::size_t total) { TheServices().screen->ShowProgress(done, total); };
    ParallelFor(missing.size(), work, progress, RenderThreads::Most());
    // A failed stretch is retried next time.
    for (const std::size_t place : missing)
        if (!sounds[place].error && sounds[place].wave.Length > 0)
            TheStepCache().Keep(sounds[place].key, sounds[place].wave);
}

void StepBatch::HandOut() const
{
    for (const Planned& one : planned) {
        const Sound* const sound = one.copied ? nullptr : &sounds[one.sound];
        if (sound && sound->error)
            std::rethrow_exception(sound->error);
        const WaveData& wave = sound ? sound->wave : one.copied->StepWave;
        if (one.becomesValid)
            Rendered::KeepStepWave(*one.step, wave);
        else
            one.step->StepWave = wave;
    }
    if (addError)
        std::rethrow_exception(addError);
}

} // namespace sprout
