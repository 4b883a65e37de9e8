// SPDX-License-Identifier: GPL-3.0-or-later
#include "songs/OpenSaveClass.h"

#include <cstddef>
#include <exception>
#include <optional>
#include <string>
#include <utility>

#include "base/Errors.h"
#include "core/FileHead.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/Tell.h"
#include "songs/SongVersions.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

using SongLoader = void (*)(LongsReader&, SongState&);

/// The reader for a file's version; none if this program does not know the version.
SongLoader LoaderOf(ByteSource& source)
{
    const float version = FileVersion(source);
    if (version == 2.0F)
        return Load_Song_V20;
    if (version == 1.0F)
        return Load_Song_V10;
    if (version == 1.1F)
        return Load_Song_V11;
    return nullptr;
}

/// The song in a file; one without tracks if it cannot be read, after a message.
SongState ReadSong(ByteSource& source, SongLoader loadVersion)
{
    try {
        const std::optional<std::uint64_t> begin = FindHeadData(source);
        if (begin) {
            SongState song;
            LongsReader data(source, *begin);
            loadVersion(data, song);
            return song;
        }
        Tell("Error Loading File", "Failed to find Data");
    } catch (const std::exception& error) {
        Tell("Error Loading File", ErrorText(error));
    }
    return {};
}

/// Leaves a song without tracks and without its own file: anything saved in its place would be another song.
void FailLoading(SongState& song)
{
    song.TrackCount = 0;
    song.OwnFile = FileMark();
}

} // namespace

void OpenSaveClass::Load_Song(const fs::path& path)
{
    SongState& shared = Shared().Song;
    const std::size_t toldBefore = MessagesTold();
    try {
        const fs::path found = FindFile(path);
        const fs::path& file = found.empty() ? path : found;
        const FileMark mark = MarkOf(file); // before reading: later changes were not read
        FileSource source(file);
        const SongLoader loadVersion = LoaderOf(source);
        SongState song = loadVersion ? ReadSong(source, loadVersion) : SongState();
        if (song.TrackCount != 0) {
            song.OwnFile = MessagesTold() == toldBefore ? mark : FileMark();
            shared = std::move(song);
            return;
        }
        FailLoading(shared);
        Tell("", "Failed Loading");
    } catch (const std::exception& error) {
        FailLoading(shared);
        Tell("Error Opening File", ErrorText(error));
    }
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
        throw RunTimeError("This song has no tracks, so it is not saved.");
}

bool MayReplaceUnasked(const fs::path& place)
{
    const FileMark& own = Shared().Song.OwnFile;
    return !FileExists(place) || (own.Path == place && own == MarkOf(place));
}

} // namespace sprout
