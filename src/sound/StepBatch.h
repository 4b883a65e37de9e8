// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <exception>
#include <unordered_map>
#include <vector>

#include "base/WaveData.h"
#include "core/Song.h"
#include "sound/RenderSetting.h"
#include "sound/StepCache.h"
#include "sound/StepSound.h"

namespace sprout {

/// The value of `StepWaveValid` in a step that copies the sound of an equal one.
enum class CopiedStep { Valid, StaysAsItIs };

/// Steps that are rendered together: equal sounds only once, new ones on all cores. The result is the same as if the
/// steps were rendered one by one.
///
/// `Add...` loads beats that are not loaded yet and shows their messages, in the order of the steps, if the setting
/// wants them read; the steps must stay in place until `Render` has filled them. A setting with the shared song or
/// cache belongs to the interface thread.
class StepBatch {
public:
    explicit StepBatch(RenderSetting setting);

    /// Takes the steps of a tune that are on and not valid; a step equal to an earlier valid one copies its sound. A
    /// failure, such as a tune with fewer steps than its count, ends the adding; `Render` throws it when its turn
    /// comes.
    void AddTune(Tune& tune, BeatSource source, CopiedStep copies);

    /// Takes one step, regardless of its flags.
    void AddStep(TuneStep& step, BeatSource source);

    /// Renders everything added: fills `StepWave`, sets `StepWaveValid`. Throws the first failure in the order of the
    /// steps; the steps before it are filled.
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
    const WaveData& InstrumentOf(TuneStep& step, BeatSource source);
    const WaveData& LoadedSound(Beat& beat) const;
    template <class Plan>
    void TryToAdd(Plan plan);
    void RenderMissing();
    void HandOut() const;

    RenderSetting setting;
    std::vector<Sound> sounds;
    std::vector<std::size_t> missing; // sounds still to be rendered
    std::unordered_map<StepKey, std::size_t, StepKeyHash> places;
    std::vector<Planned> planned;
    std::exception_ptr addError;
};

} // namespace sprout
