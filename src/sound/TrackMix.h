// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/Errors.h"
#include "base/WaveData.h"
#include "core/Song.h"
#include "sound/Mixer.h"
#include "sound/RenderSetting.h"

namespace sprout {

// How the tracks of a song become input of the mixer. All this looks at the song that is given to them and, of the
// shared state, only at the program's sound format.

/// The input of one mix; waves count from 1.
struct MixInput {
    std::vector<WaveData> waves = std::vector<WaveData>(1);
    std::vector<WaveFilePlacement> placements;
};

/// The position of a sound at `cell` on a time line that begins at cell `origin`. Throws `RunTimeError`.
[[nodiscard]] std::int32_t OffsetOf(const SongState& song, std::int32_t cell, std::int32_t origin);

/// Throws `RunTimeError` if the song has fewer tracks than its count says.
void CheckTracks(const SongState& song);

/// First painted cell of a track, 0 if there is none. Throws `RunTimeError` if it has fewer cells than the song.
[[nodiscard]] std::int32_t FirstPaintedCell(const SongState& song, const Track& track);

/// Calls sound(cell, step) for every cell that sounds a step; the tune restarts at each painted run. Throws
/// `RunTimeError` if the tune has no such step.
template <class Sound>
void RunTuneAlongPaint(const SongState& song, const Track& track, Sound sound)
{
    const Tune& tune = track.TrackTune;
    std::int32_t number = 0;
    for (std::int32_t cell = 1; cell <= song.SongCells; ++cell) {
        if (!track.IsPainted(cell)) {
            number = 0;
            continue;
        }
        number = number < tune.StepCount ? number + 1 : 1;
        if (static_cast<std::size_t>(number) >= tune.Steps.size())
            throw RunTimeError(Words::Text("The tune has no such step."));
        if (At(tune.Steps, number).IsOn())
            sound(cell, number);
    }
}

[[nodiscard]] std::size_t CountSoundingCells(const SongState& song, const Track& track);

/// Adds the steps of a track, whose sounds are in `StepWave`, and their positions.
void AddTuneTrack(MixInput& input, const SongState& song, const Track& track, std::int32_t origin);

/// The wave of a music track alone, from its first painted cell on; sets `FirstPainted` and fills the steps. track: of
/// the setting's song. Throws `RunTimeError`, std::bad_alloc.
[[nodiscard]] WaveData MixTuneTrack(const RenderSetting& setting, Track& track);

/// The same for an audio track, whose wave repeats along the paint.
[[nodiscard]] WaveData MixAudioTrack(const RenderSetting& setting, Track& track);

} // namespace sprout
