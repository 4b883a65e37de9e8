// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongModel.h"

#include <string>

#include "base/FilePaths.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongChanges.h"
#include "core/SongSizes.h"
#include "core/SongTime.h"
#include "service/Screen.h"
#include "service/Services.h"

namespace sprout {

namespace {

constexpr std::int32_t kNewSongTracks = 2;

std::string FreeSongName()
{
    const std::string first = "Untitled";
    std::string candidate = first;
    for (int n = 1; FileExists(SongPath(candidate)); ++n)
        candidate = first + " " + std::to_string(n);
    return candidate;
}

} // namespace

void NewSong()
{
    SongState& song = Shared().Song;
    song.SongTitle = FreeSongName();
    song.SongCreatedBy = "Your name here";
    song.OwnFile = FileMark();
    SongChanges::SongReplaced(song);
    song.SongCells = kSongCells;
    song.Tempo = kReferenceTempo;
    song.Tracks.clear();
    ResizeTracks(song, kNewSongTracks);
    ResizeSongBeats(song, 0);
    for (std::int32_t track = 1; track <= song.TrackCount; ++track)
        ResetTrack(track);
}

void ResetTrack(std::int32_t trackNumber)
{
    SongState& song = Shared().Song;
    if (trackNumber < 1 || trackNumber > song.TrackCount)
        return;
    Track& track = At(song.Tracks, trackNumber);
    track.Painted.assign(static_cast<std::size_t>(song.SongCells) + 1, kUntouchedCell);
    track.FirstPainted = 0;
    SongChanges::TrackReset(track);
    track.TrackRender = WaveData();
    track.TrackType = static_cast<std::int32_t>(TrackKind::Music);
    ResetTune(track.TrackTune);
}

Tune BlankTune()
{
    Tune tune;
    tune.Picture = Shared().BlankPic;
    ResizeSteps(tune, kBlankTuneSteps);
    return tune;
}

void ResetTune(Tune& tune)
{
    tune = BlankTune();
    TheServices().screen->EnableTuneNotFilledTimer();
}

bool SetTempoPercent(std::int32_t percent)
{
    SongState& song = Shared().Song;
    const std::int32_t tempo = TempoOfPercent(percent);
    if (tempo == song.Tempo)
        return false;
    song.Tempo = tempo;
    SongChanges::TempoChanged(song);
    return true;
}

} // namespace sprout
