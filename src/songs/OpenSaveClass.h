// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "base/Errors.h"
#include "core/Song.h"
#include "service/Files.h"

namespace sprout {

/// Reads a song from a file of version 2, 1.1 or 1; another version gives a song without tracks. No record of the
/// program changes; messages report tunes, beats and pictures outside the file that cannot be read. Throws
/// `SongDataError` if the song is damaged, `RunTimeError` or an exception of the standard library if its file cannot be
/// opened.
[[nodiscard]] SongState ReadSong(const std::filesystem::path& path);

/// The data in a song file makes no song.
class SongDataError : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

/// Song files (.TqSng); docs/file-formats.md shows the layouts.
class OpenSaveClass {
public:
    /// flush: whether a saved song must already be on the disk when `Save_Song` returns.
    explicit OpenSaveClass(Flush flush = Flush::Yes) : saveFlush(flush) {}

    /// Replaces the shared song by `ReadSong` with that of a file, which becomes its `OwnFile` unless a message was
    /// shown. Failures are shown in messages; `TrackCount` is then 0, the song has no own file, and the rest of it
    /// stays as it was.
    void Load_Song(const std::filesystem::path& path);

    /// Drops beats that no step uses, in the file and in memory, and writes the shared song. The target is replaced
    /// completely and becomes the song's `OwnFile`. Throws `RunTimeError`, also if the song has no tracks or the file
    /// may not be changed; the old file then stays.
    void Save_Song(const std::filesystem::path& path);

private:
    Flush saveFlush;
};

/// Throws `RunTimeError` if a song has no tracks, because its file could not be read back.
void RequireTracks(const SongState& song);

/// True if saving the shared song to `place` costs the user nothing: there is no file, or it is the song's own and
/// unchanged since. place: a path from `FindFile`, or one without a file.
[[nodiscard]] bool MayReplaceUnasked(const std::filesystem::path& place);

} // namespace sprout
