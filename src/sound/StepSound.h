// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <tuple>

#include "base/Errors.h"
#include "core/Song.h"
#include "sound/StepCache.h"

namespace sprout {

/// Where a step's instrument comes from.
enum class BeatSource {
    Song,   ///< `SongBeats`, by `BeatIndex`
    OwnBeat ///< the step's `StepBeat`
};

/// The number of a step's beat in `SongBeats`, 0 if it sounds the test tone. Throws `RunTimeError` if the song has
/// fewer beats than it says.
[[nodiscard]] std::int32_t SongBeatOf(const TuneStep& step, const SongState& song);

/// What the sound of a step with that instrument depends on.
[[nodiscard]] StepKey KeyOfStep(const TuneStep& step, WaveData instrument);

/// The sound of a step: stretched, at its volume. Length 0 if the stretch service fails. Any thread. Throws
/// `RunTimeError`, std::bad_alloc.
[[nodiscard]] WaveData RenderKey(const StepKey& key);

/// What makes two steps of one tune equal: instrument, volume, pitch and duration.
using StepLook = std::tuple<std::int32_t, std::string, std::int32_t, std::int32_t, std::int32_t>;

[[nodiscard]] StepLook LookOf(const TuneStep& step, BeatSource source);

/// Goes through the steps of a tune that are on and not valid, in their order: copy(step, equal) for one that takes the
/// sound of an equal one before it, render(step) for one that needs its own. Throws `RunTimeError` if the tune has
/// fewer steps than its count.
template <class AnyTune, class Copy, class Render>
void ForStaleSteps(AnyTune& tune, BeatSource source, Copy copy, Render render)
{
    if (tune.StepCount < 0 || static_cast<std::size_t>(tune.StepCount) >= tune.Steps.size())
        throw RunTimeError(Words::Text("The tune has fewer steps than it says."));
    std::map<StepLook, const TuneStep*> firstValid; // as it will be when a step's turn comes
    for (std::int32_t number = 1; number <= tune.StepCount; ++number) {
        auto& step = At(tune.Steps, number);
        if (!step.IsOn())
            continue;
        const StepLook look = LookOf(step, source);
        const auto equal = firstValid.find(look);
        if (!step.StepWaveValid && equal != firstValid.end()) {
            copy(step, *equal->second);
            continue;
        }
        if (!step.StepWaveValid)
            render(step);
        firstValid.try_emplace(look, &step);
    }
}

} // namespace sprout
