// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongChanges.h"

namespace sprout {

void SongChanges::PaintPressed(SongState& song, std::int32_t track)
{
    At(song.Tracks, track).TrackRenderValid.Clear();
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::PaintDragged(Track& track)
{
    track.TrackRenderValid.Clear();
}

void SongChanges::TuneReplaced(SongState& song, std::int32_t track)
{
    At(song.Tracks, track).TrackTune.TuneWaveValid.Clear();
    At(song.Tracks, track).TrackRenderValid.Clear();
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::AudioReplaced(SongState& song, std::int32_t track)
{
    At(song.Tracks, track).TrackRenderValid.Clear();
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::TrackAdded(SongState& song)
{
    At(song.Tracks, song.TrackCount).TrackRenderValid.Clear();
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::TrackDeleted(SongState& song)
{
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::TrackReset(Track& track)
{
    track.TrackRenderValid.Clear();
}

void SongChanges::TempoChanged(SongState& song)
{
    for (Track& track : song.Tracks) {
        track.TrackRenderValid.Clear();
        track.TrackTune.TuneWaveValid.Clear();
    }
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::TitleChanged(SongState& song)
{
    song.SongChanged.Set();
}

void SongChanges::SongReplaced(SongState& song)
{
    song.SongMixValid.Clear();
}

void SongChanges::SongOpened(SongState& song)
{
    song.SongChanged.Clear();
}

void SongChanges::SongSaved(SongState& song)
{
    song.SongChanged.Clear();
}

void SongChanges::StepChanged(Tune& tune, std::int32_t step)
{
    At(tune.Steps, step).StepWaveValid.Clear();
    tune.TuneWaveValid.Clear();
}

void SongChanges::StepsMoved(Tune& tune)
{
    tune.TuneWaveValid.Clear();
}

void SongChanges::StepCountChanged(Tune& tune)
{
    tune.TuneWaveValid.Clear();
}

void SongChanges::StepsReplaced(Tune& tune)
{
    tune.TuneWaveValid.Clear();
}

void SongChanges::TuneEmptied(Tune& tune)
{
    tune.TuneWave = WaveData();
    tune.TuneWaveValid.Clear();
}

} // namespace sprout
