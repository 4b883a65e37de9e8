// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/StepBatch.h"

#include <utility>

#include "base/Errors.h"
#include "base/Parallel.h"
#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "core/rendered/Rendered.h"
#include "sound/RenderThreads.h"
#include "waves/WavOperations.h"

namespace sprout {

StepBatch::StepBatch(RenderSetting renderSetting) : setting(std::move(renderSetting)) {}

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
    const auto copy = [&](TuneStep& step, const TuneStep& equal) {
        planned.push_back({&step, &equal, 0, copies == CopiedStep::Valid});
    };
    ForStaleSteps(tune, source, copy, [&](TuneStep& step) { PlanSound(step, source); });
}

const WaveData& StepBatch::InstrumentOf(TuneStep& step, BeatSource source)
{
    if (source == BeatSource::OwnBeat)
        return step.StepBeat.Name.empty() ? Shared().TestTone : LoadedSound(step.StepBeat);
    const std::int32_t beat = SongBeatOf(step, setting.song);
    return beat == 0 ? Shared().TestTone : LoadedSound(At(setting.song.SongBeats, beat));
}

const WaveData& StepBatch::LoadedSound(Beat& beat) const
{
    if (!beat.Loaded) {
        if (setting.beats == UnloadedBeats::AreRefused)
            throw WorkStopped();
        ReloadBeat(beat);
    }
    return beat.Sound;
}

void StepBatch::PlanSound(TuneStep& step, BeatSource source)
{
    planned.push_back({&step, nullptr, SoundOf(step, source), true});
}

std::size_t StepBatch::SoundOf(TuneStep& step, BeatSource source)
{
    Sound sound{KeyOfStep(step, InstrumentOf(step, source)), EmptyWave(), nullptr};
    const std::size_t place = sounds.size();
    if (sound.key.Source.Length > 0) {
        if (const auto [known, isNew] = places.try_emplace(sound.key, place); !isNew)
            return known->second;
        if (const WaveData* kept = setting.cache.Find(sound.key))
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
    ParallelFor(missing.size(), work, setting.stepProgress, RenderThreads::Most());
    // A failed stretch is retried next time.
    for (const std::size_t place : missing)
        if (!sounds[place].error && sounds[place].wave.Length > 0)
            setting.cache.Keep(sounds[place].key, sounds[place].wave);
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
