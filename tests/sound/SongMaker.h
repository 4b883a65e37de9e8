// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <utility>

#include "core/Shared.h"
#include "core/Song.h"

namespace sprout {

inline constexpr std::int32_t kCellFrames = 11025; // exact at the slow tempo below
inline constexpr std::int32_t kSlowTempo = 240;

/// Adds a loaded beat to the shared song and returns its index.
inline std::int32_t AddBeat(const WaveData& sound, const std::string& name = "Beat")
{
    SongState& song = Shared().Song;
    Beat beat;
    beat.Name = name;
    beat.Sound = sound;
    beat.Loaded = true;
    song.SongBeats.push_back(beat);
    return ++song.SongBeatCount;
}

/// A tune of `count` steps, all off.
inline Tune MakeTune(std::int32_t count)
{
    Tune tune;
    tune.Steps.resize(static_cast<std::size_t>(count) + 1);
    tune.StepCount = count;
    return tune;
}

/// Switches on a step with a beat of the song.
inline TuneStep& SetStep(Tune& tune, std::int32_t number, std::int32_t beatIndex)
{
    TuneStep& step = At(tune.Steps, number);
    step.OnPos = 1;
    step.BeatIndex = beatIndex;
    return step;
}

inline Track& AddTrack()
{
    SongState& song = Shared().Song;
    song.Tracks.emplace_back();
    song.Tracks.back().Painted.assign(static_cast<std::size_t>(song.SongCells) + 1, 0);
    ++song.TrackCount;
    return song.Tracks.back();
}

inline std::int32_t AddTuneTrack(Tune tune)
{
    AddTrack().TrackTune = std::move(tune);
    return Shared().Song.TrackCount;
}

inline std::int32_t AddAudioTrack(const WaveData& audio)
{
    Track& track = AddTrack();
    track.TrackType = static_cast<std::int32_t>(TrackKind::Audio);
    track.TrackAudio = audio;
    return Shared().Song.TrackCount;
}

inline Track& TrackAt(std::int32_t number)
{
    return At(Shared().Song.Tracks, number);
}

/// Sets cells `first` to `last` to a value.
inline void Paint(std::int32_t track, std::int32_t first, std::int32_t last, std::int32_t value = 1)
{
    for (std::int32_t cell = first; cell <= last; ++cell)
        At(TrackAt(track).Painted, cell) = value;
}

} // namespace sprout
