// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "base/WaveData.h"
#include "core/Song.h"

namespace sprout {

/// Stores a sound in a record together with the flag that says it is valid. For those who render sounds or read
/// rendered ones from files; src/floors.txt keeps this folder from everybody else.
class Rendered {
public:
    static void KeepStepWave(TuneStep& step, WaveData wave)
    {
        step.StepWave = std::move(wave);
        step.StepWaveValid.Set();
    }
    static void KeepTuneWave(Tune& tune, WaveData wave)
    {
        tune.TuneWave = std::move(wave);
        tune.TuneWaveValid.Set();
    }
    static void KeepTrackRender(Track& track, WaveData wave)
    {
        track.TrackRender = std::move(wave);
        track.TrackRenderValid.Set();
    }
    static void KeepSongMix(SongState& song, WaveData wave)
    {
        song.SongMix = std::move(wave);
        song.SongMixValid.Set();
    }
};

} // namespace sprout
