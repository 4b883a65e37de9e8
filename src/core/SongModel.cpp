// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongModel.h"

#include <algorithm>
#include <limits>
#include <string>

#include "base/FilePaths.h"
#include "base/Numbers.h"
#include "core/Paths.h"
#include "core/Shared.h"
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
    song.SongMixValid = false;
    song.SongCells = kSongCells;
    song.TrackCount = kNewSongTracks;
    song.Tempo = kReferenceTempo;
    song.Tracks.assign(kNewSongTracks + 1, Track());
    song.SongBeatCount = 0;
    song.SongBeats.assign(1, Beat());
    for (std::int32_t track = 1; track <= song.TrackCount; ++track)
        ResetTrack(track);
}

void ResetTrack(std::int32_t trackNumber)
{
    SongState& song = Shared().Song;
    if (trackNumber < 1 || trackNumber > song.TrackCount)
        return;
    Track& track = At(song.Tracks, trackNumber);
    track.Painted.assign(static_cast<std::size_t>(song.SongCells) + 1, 0);
    track.FirstPainted = 0;
    track.TrackRenderValid = false;
    track.TrackRender = WaveData();
    track.TrackType = static_cast<std::int32_t>(TrackKind::Music);
    ResetTune(track.TrackTune);
}

void ResetTune(Tune& tune)
{
    tune = Tune();
    tune.Picture = Shared().BlankPic;
    tune.Steps.resize(kBlankTuneSteps + 1);
    tune.StepCount = kBlankTuneSteps;
    TheServices().screen->EnableTuneNotFilledTimer();
}

std::int32_t CellOffset(std::int32_t cell, std::int32_t origin, std::int32_t tempo, std::int32_t rate)
{
    const double cellSeconds = CellSeconds(tempo);
    return RoundHalfEven((static_cast<double>(cell) - origin) * cellSeconds * rate);
}

std::int32_t SongSeconds(std::int32_t tempo)
{
    return RoundHalfEven(CellSeconds(tempo) * kSongCells);
}

std::int32_t TempoPercent(std::int32_t tempo)
{
    return std::clamp(RoundHalfEven(static_cast<double>(tempo) * 100 / kReferenceTempo), 50, 200);
}

std::int32_t TempoOfPercent(std::int32_t percent)
{
    return RoundHalfEven(static_cast<double>(percent) * kReferenceTempo / 100);
}

std::int32_t AudioCycleCells(const WaveData& audio)
{
    if (audio.Rate <= 0)
        return 1;
    const double seconds = static_cast<double>(audio.Length) / audio.Rate;
    const double cells =
        std::min<double>(seconds / CellSeconds(kReferenceTempo), std::numeric_limits<std::int32_t>::max());
    return std::max(RoundHalfEven(cells), 1);
}

std::int32_t FindFirstPainted(const Track& track, std::int32_t songCells)
{
    const auto cells = std::min(static_cast<std::size_t>(std::max(songCells, 0)) + 1, track.Painted.size());
    for (std::int32_t cell = 1; static_cast<std::size_t>(cell) < cells; ++cell)
        if (At(track.Painted, cell) == 1)
            return cell;
    return 0;
}

void InvalidateForTempo()
{
    SongState& song = Shared().Song;
    for (Track& track : song.Tracks) {
        track.TrackRenderValid = false;
        track.TrackTune.TuneWaveValid = false;
    }
    song.SongMixValid = false;
    song.SongChanged = true;
}

} // namespace sprout
