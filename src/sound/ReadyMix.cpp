// SPDX-License-Identifier: GPL-3.0-or-later
#include "sound/ReadyMix.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "core/rendered/Rendered.h"

namespace sprout {

namespace {

/// Whether the array has the elements 1 to `count`.
template <class Records>
bool Holds(const Records& records, std::int32_t count)
{
    return count < 0 || static_cast<std::size_t>(count) < records.size();
}

bool SameBeats(const SongState& a, const SongState& b)
{
    if (a.SongBeatCount != b.SongBeatCount || !Holds(a.SongBeats, a.SongBeatCount) ||
        !Holds(b.SongBeats, b.SongBeatCount))
        return false;
    for (std::int32_t number = 1; number <= a.SongBeatCount; ++number)
        if (At(a.SongBeats, number).Loaded != At(b.SongBeats, number).Loaded ||
            At(a.SongBeats, number).Sound != At(b.SongBeats, number).Sound)
            return false;
    return true;
}

bool FitsStep(const TuneStep& step, const TuneStep& before, const TuneStep& after)
{
    if (step.OnPos != before.OnPos || step.BeatIndex != before.BeatIndex || step.PitchShift != before.PitchShift ||
        step.Volume != before.Volume || step.Duration != before.Duration)
        return false;
    if (step.StepWaveValid)
        return step.StepWave == after.StepWave;
    // A step that is on and not valid gets its sound anew, whatever it holds; one that is off goes into the mix as it
    // is.
    return !before.StepWaveValid && (step.IsOn() || step.StepWave == before.StepWave);
}

bool FitsTune(const Tune& tune, const Tune& before, const Tune& after)
{
    if (tune.StepCount != before.StepCount || tune.Steps.size() != before.Steps.size() ||
        !Holds(tune.Steps, tune.StepCount))
        return false;
    for (std::int32_t number = 1; number <= tune.StepCount; ++number)
        if (!FitsStep(At(tune.Steps, number), At(before.Steps, number), At(after.Steps, number)))
            return false;
    return true;
}

bool FitsAudio(const Track& track, const Track& before, const Track& after)
{
    if (track.TrackRenderValid)
        return track.FirstPainted == after.FirstPainted && track.TrackRender == after.TrackRender;
    return !before.TrackRenderValid && track.FirstPainted == before.FirstPainted &&
           track.TrackAudio == before.TrackAudio;
}

bool FitsTrack(const Track& track, const Track& before, const Track& after)
{
    if (track.TrackType != before.TrackType || track.Painted != before.Painted)
        return false;
    if (track.IsAudio())
        return FitsAudio(track, before, after);
    // The tune of a track without paint is not looked at.
    return !track.IsMusic() || after.FirstPainted == 0 || FitsTune(track.TrackTune, before.TrackTune, after.TrackTune);
}

void HandSteps(Tune& tune, const Tune& before, const Tune& after)
{
    for (std::int32_t number = 1; number <= tune.StepCount; ++number) {
        TuneStep& step = At(tune.Steps, number);
        const TuneStep& mixed = At(after.Steps, number);
        if (step.StepWaveValid)
            continue;
        if (mixed.StepWaveValid)
            Rendered::KeepStepWave(step, mixed.StepWave);
        else if (mixed.StepWave != At(before.Steps, number).StepWave) // a copy
            step.StepWave = mixed.StepWave;
    }
}

void HandTrack(Track& track, const Track& before, const Track& after)
{
    if (track.IsMusic()) {
        track.FirstPainted = after.FirstPainted;
        if (track.FirstPainted != 0)
            HandSteps(track.TrackTune, before.TrackTune, after.TrackTune);
    }
    if (track.IsAudio() && !track.TrackRenderValid) {
        track.FirstPainted = after.FirstPainted;
        Rendered::KeepTrackRender(track, after.TrackRender);
    }
}

} // namespace

SongState CopyForMix(const SongState& song)
{
    SongState copy = song;
    copy.SongMix = WaveData();
    for (Track& track : copy.Tracks) {
        track.TrackTune.TuneWave = WaveData();
        if (!track.IsAudio())
            track.TrackRender = WaveData();
    }
    return copy;
}

ReadyMix::ReadyMix(SongState songBefore, SongState songAfter)
    : before(std::move(songBefore)), after(std::move(songAfter))
{
}

bool ReadyMix::FitsTo(const SongState& song) const
{
    if (song.TrackCount != before.TrackCount || song.SongCells != before.SongCells || song.Tempo != before.Tempo ||
        !Holds(song.Tracks, song.TrackCount) || !SameBeats(song, before))
        return false;
    for (std::int32_t number = 1; number <= song.TrackCount; ++number)
        if (!FitsTrack(At(song.Tracks, number), At(before.Tracks, number), At(after.Tracks, number)))
            return false;
    return true;
}

void ReadyMix::HandTo(SongState& song)
{
    for (std::int32_t number = 1; number <= song.TrackCount; ++number)
        HandTrack(At(song.Tracks, number), At(before.Tracks, number), At(after.Tracks, number));
    song.SongFirstPos = after.SongFirstPos;
    Rendered::KeepSongMix(song, std::move(after.SongMix));
}

} // namespace sprout
