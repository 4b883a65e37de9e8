// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <span>

#include "core/Paths.h"
#include "core/Shared.h"
#include "core/Text.h"
#include "songs/SongVersions.h"

namespace sprout {

namespace {

void WriteBeat(LongsWriter& data, const Beat& beat)
{
    const bool stored =
        Shared().SongBeatsInside || !FileExists(NamedFile(Shared().UserBeats, StoredText(beat.Name), ".wav"));
    data.PutText(beat.Name);
    data.Put(stored ? 1 : 0);
    if (!stored)
        return;
    data.PutText(beat.DateStamp);
    data.PutWave(beat.Sound);
    data.PutPicture(beat.Picture);
}

void WriteTune(LongsWriter& data, const Tune& tune)
{
    data.Put(tune.Name.empty() ? 0 : 1);
    if (tune.Name.empty())
        return;
    data.PutText(tune.Name);
    data.Put(1);
    data.PutText(tune.DateStamp);
    data.PutText(tune.CreatedBy);
    data.PutPicture(tune.Picture);
    data.Put(tune.StepCount);
    for (std::int32_t i = 1; i <= tune.StepCount; ++i) {
        const TuneStep& step = At(tune.Steps, i);
        data.Put(step.OnPos);
        data.Put(step.PitchShift);
        data.Put(step.Duration);
        data.Put(step.Volume);
        data.Put(step.BeatIndex);
    }
    data.Put(0);
}

void WriteTrack(LongsWriter& data, const Track& track)
{
    data.Put(track.TrackType);
    data.PutMany(std::span(track.Painted).subspan(1));
    if (track.IsMusic())
        WriteTune(data, track.TrackTune);
    else if (track.IsAudio())
        data.PutWave(track.TrackAudio);
}

} // namespace

LongsWriter Write_Song_Data(const SongState& song)
{
    LongsWriter data;
    data.Put(0);
    data.Put(song.TrackCount);
    data.Put(song.SongBeatCount);
    data.Put(song.SongCells);
    data.Put(song.Tempo);
    data.PutText(song.SongTitle);
    data.PutText(song.SongCreatedBy);
    for (std::int32_t i = 1; i <= song.SongBeatCount; ++i)
        WriteBeat(data, At(song.SongBeats, i));
    for (std::int32_t i = 1; i <= song.TrackCount; ++i)
        WriteTrack(data, At(song.Tracks, i));
    data.Replace(0, data.Count() - 1);
    return data;
}

} // namespace sprout
