// SPDX-License-Identifier: GPL-3.0-or-later
#include <string>
#include <vector>

#include "beats/BeatEntry.h"
#include "beats/BeatFiles.h"
#include "core/SongModel.h"
#include "core/SongSizes.h"
#include "songs/SongReader.h"
#include "songs/SongVersions.h"
#include "tunes/StepEntry.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {

namespace {

constexpr std::int64_t kStepElements11 = 3;
constexpr std::int32_t kUnchangedDuration = 100;

void SetTuneBeat(Tune& tune, std::int32_t beatIndex)
{
    for (std::int32_t i = 1; i <= tune.StepCount; ++i)
        At(tune.Steps, i).BeatIndex = beatIndex;
}

/// Reads the song's head and then its tracks; `readMusic` reads what a music track has besides its cells.
template <class ReadMusic>
void ReadOldSong(LongsReader& data, SongState& song, ReadMusic readMusic)
{
    const std::int32_t trackCount = data.Get();
    ReadSongHead(data, song);
    MakeTracks(data, song, trackCount);
    for (std::int32_t i = 1; i <= trackCount; ++i) {
        Track& track = At(song.Tracks, i);
        ReadPaint(data, track, song.SongCells, song.SongCells);
        if (track.IsMusic())
            readMusic(track.TrackTune);
        else if (track.IsAudio())
            track.TrackAudio = data.GetWave();
    }
}

/// The place of the track's beat in the song's list; 0 if the track has none.
std::int32_t ReadBeat11(LongsReader& data, SongState& song)
{
    if (data.Get() != 1)
        return 0;
    Beat beat;
    beat.Name = data.GetText();
    if (data.Get() == 1) {
        ReadStoredBeat(data, beat);
        return AppendSongBeat(song, std::move(beat));
    }
    std::int32_t index = 0;
    FindOrLoadBeat(song, beat.Name, index);
    return index;
}

void ReadTune11(LongsReader& data, Tune& tune)
{
    tune.Name = data.GetText();
    ReadTuneHead(data, tune);
    MakeSteps(data, tune, kStepElements11);
    for (std::int32_t i = 1; i <= tune.StepCount; ++i) {
        TuneStep& step = At(tune.Steps, i);
        step.OnPos = data.Get();
        step.PitchShift = data.Get();
        step.Volume = data.Get();
        step.Duration = kUnchangedDuration;
    }
}

void SkipMusic11(LongsReader& data)
{
    if (data.Get() == 1) {
        data.SkipText();
        if (data.Get() == 1)
            SkipStoredBeat(data);
    }
    if (data.Get() != 1)
        return;
    data.SkipText();
    SkipTuneHead(data);
    SkipSteps(data, kStepElements11);
}

void SkipMusic10(LongsReader& data)
{
    data.SkipText();
    data.SkipText();
}

/// The paint of any old version.
void ReadOldPaint(LongsReader& data, SongState& song, const PaintLimits& limits, void (*skipMusic)(LongsReader&))
{
    const std::int32_t trackCount = data.Get();
    ReadPaintHead(data, song);
    ReadPaintOfTracks(data, song, trackCount, limits, skipMusic);
}

} // namespace

void Load_Song_V11(LongsReader& data, SongState& song)
{
    ReadOldSong(data, song, [&](Tune& tune) {
        const std::int32_t beatIndex = ReadBeat11(data, song);
        if (data.Get() == 1)
            ReadTune11(data, tune);
        else
            LoadStarFile(tune); // the file names none, so this makes 16 silent steps
        SetTuneBeat(tune, beatIndex);
    });
}

void Load_Paint_V11(LongsReader& data, SongState& song, const PaintLimits& limits)
{
    ReadOldPaint(data, song, limits, SkipMusic11);
}

void Load_Song_V10(LongsReader& data, SongState& song)
{
    std::vector<std::string> beatNames; // of the music tracks, in order
    ReadOldSong(data, song, [&](Tune& tune) {
        beatNames.push_back(data.GetText());
        tune.Name = data.GetText();
    });
    auto beatName = beatNames.begin();
    for (std::int32_t i = 1; i <= song.TrackCount; ++i) {
        Track& track = At(song.Tracks, i);
        if (!track.IsMusic())
            continue;
        std::int32_t beatIndex = 0;
        FindOrLoadBeat(song, *beatName++, beatIndex);
        LoadStarFile(track.TrackTune);
        SetTuneBeat(track.TrackTune, beatIndex);
    }
}

void Load_Paint_V10(LongsReader& data, SongState& song, const PaintLimits& limits)
{
    ReadOldPaint(data, song, limits, SkipMusic10);
}

} // namespace sprout
