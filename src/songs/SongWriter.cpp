// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdint>

#include "beats/BeatEntry.h"
#include "songs/SongVersions.h"
#include "tunes/StepEntry.h"

namespace sprout {

namespace {

void WriteBeat(LongsWriter& data, const Beat& beat)
{
    data.PutText(beat.Name);
    WriteBeatEntry(data, beat);
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
        WriteStepEntry(data, At(tune.Steps, i));
        data.Put(At(tune.Steps, i).BeatIndex);
    }
    data.Put(0);
}

void WriteTrack(LongsWriter& data, const Track& track, std::int32_t songCells)
{
    data.Put(track.TrackType);
    // As many as the head says, whatever the array holds: with one too few, nothing after it could be read back.
    const auto held = static_cast<std::int64_t>(track.Painted.size());
    for (std::int32_t cell = 1; cell <= songCells; ++cell)
        data.Put(cell < held ? At(track.Painted, cell) : 0);
    if (track.IsMusic())
        WriteTune(data, track.TrackTune);
    else if (track.IsAudio())
        data.PutWave(track.TrackAudio);
}

} // namespace

LongsWriter Write_Song_Data(const SongState& song)
{
    LongsWriter data;
    data.Put(0); // the place of the last index
    data.Put(song.TrackCount);
    data.Put(song.SongBeatCount);
    data.Put(song.SongCells);
    data.Put(song.Tempo);
    data.PutText(song.SongTitle);
    data.PutText(song.SongCreatedBy);
    for (std::int32_t i = 1; i <= song.SongBeatCount; ++i)
        WriteBeat(data, At(song.SongBeats, i));
    for (std::int32_t i = 1; i <= song.TrackCount; ++i)
        WriteTrack(data, At(song.Tracks, i), song.SongCells);
    data.PutLastIndex();
    return data;
}

} // namespace sprout
