// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/OpenSaveClass.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>
#include <utility>

#include "base/Errors.h"
#include "base/Guarded.h"
#include "core/FileHead.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongChanges.h"
#include "core/SongSizes.h"
#include "core/Tell.h"
#include "service/Screen.h"
#include "service/Services.h"
#include "songs/SongVersions.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// Leaves a song without tracks and without its own file: anything saved in its place would be another song.
void FailLoading(SongState& song)
{
    ForgetTracks(song);
    song.OwnFile = FileMark();
}

bool HasBlankTune(const SongState& song)
{
    const auto isBlank = [](const Track& track) {
        return track.IsMusic() && SamePicture(track.TrackTune.Picture, Shared().BlankPic);
    };
    return std::any_of(song.Tracks.begin() + 1, song.Tracks.end(), isBlank);
}

/// Replaces the shared song by that of a file. Returns false if it has no tracks.
bool TakeSong(const fs::path& file)
{
    const std::size_t toldBefore = MessagesTold();
    const FileMark mark = MarkOf(file); // before reading: later changes were not read
    SongState song = ReadSong(file);
    if (song.TrackCount == 0)
        return false;
    song.OwnFile = MessagesTold() == toldBefore ? mark : FileMark();
    Shared().Song = std::move(song);
    SongChanges::SongReplaced(Shared().Song);
    if (HasBlankTune(Shared().Song))
        TheServices().screen->EnableTuneNotFilledTimer();
    return true;
}

} // namespace

SongState ReadSong(const fs::path& path)
{
    FileSource source(path);
    const SongVersion* const version = FindSongVersion(source);
    if (!version)
        return {};
    SongState song;
    const auto tell = [](const std::exception& error) { throw SongDataError(ErrorWords(error)); };
    GuardedBy(tell, [&] {
        LongsReader data = SongArray(source);
        version->load(data, song);
    });
    return song;
}

void OpenSaveClass::Load_Song(const fs::path& path)
{
    SongState& shared = Shared().Song;
    try {
        const fs::path found = FindFile(path);
        if (TakeSong(found.empty() ? path : found))
            return;
    } catch (const SongDataError& error) {
        Tell(Words::Text("Error Loading File"), ErrorWords(error));
    } catch (const std::exception& error) {
        FailLoading(shared);
        return Tell(Words::Text("Error Opening File"), ErrorWords(error));
    }
    FailLoading(shared);
    Tell({}, Words::Text("Failed Loading"));
}

void OpenSaveClass::Save_Song(const fs::path& path)
{
    SongState& song = Shared().Song;
    RequireTracks(song);
    Compact_Song_Beats(song);
    const LongsWriter data = Write_Song_Data(song);
    ReplaceDataFile(path, FileHead("TqSng", " Sprout Song File"), data, saveFlush);
    song.OwnFile = MarkOf(path);
}

void RequireTracks(const SongState& song)
{
    if (song.TrackCount < 1)
        throw RunTimeError(Words::Text("This song has no tracks, so it is not saved."));
}

bool MayReplaceUnasked(const fs::path& place)
{
    const FileMark& own = Shared().Song.OwnFile;
    return !FileExists(place) || (own.Path == place && own == MarkOf(place));
}

} // namespace sprout
