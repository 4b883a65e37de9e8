// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Flags.h"

#include <utility>

#include "core/SongChanges.h"
#include "core/rendered/Rendered.h"

namespace sprout {

void SetStepWaveValid(TuneStep& step, bool valid)
{
    if (valid)
        return Rendered::KeepStepWave(step, step.StepWave);
    Tune tune;
    tune.Steps = {TuneStep(), std::move(step)};
    SongChanges::StepChanged(tune, 1);
    step = std::move(tune.Steps.back());
}

void SetTuneWaveValid(Tune& tune, bool valid)
{
    if (valid)
        Rendered::KeepTuneWave(tune, tune.TuneWave);
    else
        SongChanges::StepsMoved(tune);
}

void SetTrackRenderValid(Track& track, bool valid)
{
    if (valid)
        Rendered::KeepTrackRender(track, track.TrackRender);
    else
        SongChanges::PaintDragged(track);
}

void SetSongMixValid(SongState& song, bool valid)
{
    if (valid)
        Rendered::KeepSongMix(song, song.SongMix);
    else
        SongChanges::SongReplaced(song);
}

void SetSongChanged(SongState& song, bool changed)
{
    if (changed)
        SongChanges::TitleChanged(song);
    else
        SongChanges::SongSaved(song);
}

} // namespace sprout
