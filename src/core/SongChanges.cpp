// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongChanges.h"

namespace sprout {

void SongChanges::PaintPressed(SongState& song, std::int32_t track)
{
    ++count;
    At(song.Tracks, track).TrackRenderValid.Clear();
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::PaintDragged(Track& track)
{
    ++count;
    track.TrackRenderValid.Clear();
}

void SongChanges::TuneReplaced(SongState& song, std::int32_t track)
{
    ++count;
    At(song.Tracks, track).TrackTune.TuneWaveValid.Clear();
    At(song.Tracks, track).TrackRenderValid.Clear();
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::AudioReplaced(SongState& song, std::int32_t track)
{
    ++count;
    At(song.Tracks, track).TrackRenderValid.Clear();
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::TrackAdded(SongState& song)
{
    ++count;
    At(song.Tracks, song.TrackCount).TrackRenderValid.Clear();
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::TrackDeleted(SongState& song)
{
    ++count;
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::TrackReset(Track& track)
{
    ++count;
    track.TrackRenderValid.Clear();
}

void SongChanges::TempoChanged(SongState& song)
{
    ++count;
    for (Track& track : song.Tracks) {
        track.TrackRenderValid.Clear();
        track.TrackTune.TuneWaveValid.Clear();
    }
    song.SongMixValid.Clear();
    song.SongChanged.Set();
}

void SongChanges::TitleChanged(SongState& song)
{
    ++count;
    song.SongChanged.Set();
}

void SongChanges::SongReplaced(SongState& song)
{
    ++count;
    song.SongMixValid.Clear();
}

void SongChanges::SongOpened(SongState& song)
{
    ++count;
    song.SongChanged.Clear();
}

void SongChanges::SongSaved(SongState& song)
{
    ++count;
    song.SongChanged.Clear();
}

void SongChanges::StepChanged(Tune& tune, std::int32_t step)
{
    ++count;
    At(tune.Steps, step).StepWaveValid.Clear();
    tune.TuneWaveValid.Clear();
}

void SongChanges::StepsMoved(Tune& tune)
{
    ++count;
    tune.TuneWaveValid.Clear();
}

void SongChanges::StepCountChanged(Tune& tune)
{
    ++count;
    tune.TuneWaveValid.Clear();
}

void SongChanges::StepsReplaced(Tune& tune)
{
    ++count;
    tune.TuneWaveValid.Clear();
}

void SongChanges::TuneEmptied(Tune& tune)
{
    ++count;
    tune.TuneWave = WaveData();
    tune.TuneWaveValid.Clear();
}

} // namespace sprout
