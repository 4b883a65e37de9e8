// SPDX-License-Identifier: GPL-3.0-or-later
#include <map>
#include <string>

#include "beats/BeatEntry.h"
#include "beats/BeatFiles.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongModel.h"
#include "core/SongSizes.h"
#include "songs/SongReader.h"
#include "songs/SongVersions.h"
#include "tunes/StepEntry.h"
#include "tunes/TunOpnSavClass.h"
#include "tunes/TuneTable.h"

namespace sprout {

namespace {

constexpr std::int64_t kBeatElements = kTextElements + 1;
constexpr std::int64_t kStepElements20 = kStepEntryElements + 1;

/// Reads one song. Beats and tunes kept outside it are read once each, however often the song names them.
class SongReader20 {
public:
    SongReader20(LongsReader& array, SongState& filled) : data(array), song(filled) {}

    void ReadSong();

private:
    void ReadBeat(Beat& beat);
    void ReadTrack(Track& track);
    void ReadMusic(Tune& tune);
    void ReadTune(Tune& tune);
    void TakeTuneFile(Tune& tune, const std::string& name);

    LongsReader& data;
    SongState& song;
    BeatReader outsideBeats;
    std::map<std::string, Tune> outsideTunes;
};

void SongReader20::ReadSong()
{
    const std::int32_t trackCount = data.Get();
    const std::int32_t beatCount = data.Get();
    ReadSongHead(data, song);
    data.Require(beatCount, kBeatElements);
    ResizeSongBeats(song, beatCount);
    for (std::int32_t i = 1; i <= beatCount; ++i)
        ReadBeat(At(song.SongBeats, i));
    MakeTracks(data, song, trackCount);
    for (std::int32_t i = 1; i <= trackCount; ++i)
        ReadTrack(At(song.Tracks, i));
}

void SongReader20::ReadBeat(Beat& beat)
{
    beat.Name = data.GetText();
    if (data.Get() == 1)
        ReadStoredBeat(data, beat);
    else
        outsideBeats.LoadBeatFile(beat, beat.Name);
}

void SongReader20::ReadTrack(Track& track)
{
    ReadPaint(data, track, song.SongCells, song.SongCells);
    if (track.IsMusic())
        ReadMusic(track.TrackTune);
    else if (track.IsAudio())
        track.TrackAudio = data.GetWave();
}

void SongReader20::ReadMusic(Tune& tune)
{
    if (data.Get() == 0) {
        tune = BlankTune();
        return;
    }
    const std::string name = data.GetText();
    if (data.Get() != 1)
        return TakeTuneFile(tune, name);
    tune.Name = name;
    ReadTune(tune);
}

void SongReader20::ReadTune(Tune& tune)
{
    ReadTuneHead(data, tune);
    MakeSteps(data, tune, kStepElements20);
    for (std::int32_t i = 1; i <= tune.StepCount; ++i) {
        ReadStepEntry(data, At(tune.Steps, i));
        At(tune.Steps, i).BeatIndex = data.Get();
    }
    static_cast<void>(data.Get()); // the end mark
}

void SongReader20::TakeTuneFile(Tune& tune, const std::string& name)
{
    const std::filesystem::path file = TuneFileToRead(name);
    if (!FileExists(file)) {
        tune = BlankTune();
        return;
    }
    auto found = outsideTunes.find(name);
    if (found == outsideTunes.end()) {
        const TuneReading reading = sprout::ReadTune(FindFile(file));
        TellFailure(reading);
        found = outsideTunes.emplace(name, reading.Record.value_or(Tune())).first;
    }
    tune = found->second;
    MergeTuneBeats(song, tune);
}

void SkipBeat(LongsReader& data)
{
    data.SkipText();
    if (data.Get() == 1)
        SkipStoredBeat(data);
}

void SkipMusic(LongsReader& data)
{
    if (data.Get() == 0)
        return;
    data.SkipText();
    if (data.Get() != 1)
        return;
    SkipTuneHead(data);
    SkipSteps(data, kStepElements20);
    data.SkipMany(1, 1); // the end mark
}

} // namespace

void Load_Song_V20(LongsReader& data, SongState& song)
{
    SongReader20(data, song).ReadSong();
}

void Load_Paint_V20(LongsReader& data, SongState& song, const PaintLimits& limits)
{
    const std::int32_t trackCount = data.Get();
    const std::int32_t beatCount = data.Get();
    ReadPaintHead(data, song);
    data.Require(beatCount, kBeatElements);
    for (std::int32_t i = 1; i <= beatCount; ++i)
        SkipBeat(data);
    ReadPaintOfTracks(data, song, trackCount, limits, SkipMusic);
}

} // namespace sprout
