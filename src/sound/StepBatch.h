// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <exception>
#include <unordered_map>
#include <vector>

#include "base/WaveData.h"
#include "core/Song.h"
#include "sound/StepCache.h"

namespace sprout {

/// Where a step's instrument comes from.
enum class BeatSource {
    Song,   ///< `SongBeats`, by `BeatIndex`
    OwnBeat ///< the step's `StepBeat`
};

/// What `StepWaveValid` becomes in a step that takes the sound of an equal one.
enum class CopiedStep { Valid, StaysAsItIs };

/// Steps that are rendered together: equal sounds once, all that is new on all cores, the outcome as if the steps were
/// done one after the other.
///
/// `Add...` loads beats that are not loaded yet and shows their messages, in the order of the steps; the steps stay
/// where they are until `Render` has filled them. Interface thread only.
class StepBatch {
public:
    /// Takes the steps of a tune that are on and not valid; a step equal to an earlier valid one copies its sound. A
    /// failure, as of a tune with fewer steps than it tells, ends the adding, and `Render` throws it in its turn.
    void AddTune(Tune& tune, BeatSource source, CopiedStep copies);

    /// Takes one step, whatever its flags.
    void AddStep(TuneStep& step, BeatSource source);

    /// Renders what was added: fills `StepWave`, sets `StepWaveValid`. Throws what failed first in the order of the
    /// steps; those before it are filled.
    void Render();

private:
    /// One distinct sound.
    struct Sound {
        StepKey key;
        WaveData wave;
        std::exception_ptr error;
    };
    struct Planned {
        TuneStep* step;
        const TuneStep* copied; // the equal step, or null
        std::size_t sound;      // otherwise
        bool becomesValid;
    };

    void PlanTune(Tune& tune, BeatSource source, CopiedStep copies);
    void PlanSound(TuneStep& step, BeatSource source);
    std::size_t SoundOf(TuneStep& step, BeatSource source);
    template <class Plan>
    void TryToAdd(Plan plan);
    void RenderMissing();
    void HandOut() const;

    std::vector<Sound> sounds;
    std::vector<std::size_t> missing; // sounds that are to be rendered
    std::unordered_map<StepKey, std::size_t, StepKeyHash> places;
    std::vector<Planned> planned;
    std::exception_ptr addError;
};

} // namespace sprout
