// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "core/Song.h"
#include "service/Files.h"

namespace sprout {

/// Song files (.TqSng); docs/file-formats.md draws the layouts.
class OpenSaveClass {
public:
    /// flush: whether a saved song is on the disk, and not only on its way there, when `Save_Song` returns.
    explicit OpenSaveClass(Flush flush = Flush::Yes) : saveFlush(flush) {}

    /// Replaces the shared song by that of a file of version 2, 1.1 or 1, which is its `OwnFile` then unless something
    /// was told on the way. Failures are told in messages; then `TrackCount` is 0, the song has no own file, and the
    /// rest of it stands as it was.
    void Load_Song(const std::filesystem::path& path);

    /// Drops beats that no step uses, here and in memory, and writes the shared song. The target is replaced whole.
    /// The file is the song's `OwnFile` then. Throws `RunTimeError`, also for a song without tracks and where the file
    /// may not be changed; the old file stands then.
    void Save_Song(const std::filesystem::path& path);

private:
    Flush saveFlush;
};

/// Throws `RunTimeError` where a song has no tracks: its file could not be read again.
void RequireTracks(const SongState& song);

/// True where saving the shared song to `place` takes nothing from the user: no file stands there, or the song's own,
/// which nobody has changed since. place: a path as `FindFile` gives it, or one of no file.
[[nodiscard]] bool MayReplaceUnasked(const std::filesystem::path& place);

} // namespace sprout
