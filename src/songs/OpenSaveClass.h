// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "service/Files.h"

namespace sprout {

/// Song files (.TqSng); docs/file-formats.md draws the layouts.
class OpenSaveClass {
public:
    /// flush: whether a saved song is on the disk, and not only on its way there, when `Save_Song` returns.
    explicit OpenSaveClass(Flush flush = Flush::Yes) : saveFlush(flush) {}

    /// Replaces the shared song by that of a file of version 2, 1.1 or 1. Failures are told in messages; then
    /// `TrackCount` is 0 and the rest of the song stands as it was.
    void Load_Song(const std::filesystem::path& path);

    /// Drops beats that no step uses, here and in memory, and writes the shared song. The target is replaced whole.
    /// Throws `RunTimeError`; the old file stands then.
    void Save_Song(const std::filesystem::path& path);

private:
    Flush saveFlush;
};

} // namespace sprout
