// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace sprout {

/// Keeps unsaved work when the system ends the program and nobody can be asked.
class SongKeeper {
public:
    /// Writes the shared song to a new file in `UserSongs`, without replacing any, and notes it for the next start. The
    /// shared song stays unchanged. Returns the name of the file; empty if there is nothing to keep: no change, no
    /// track, or a song that this keeper has already kept. Throws `RunTimeError` if it cannot be written.
    std::string KeepUnsavedSong();

private:
    std::optional<std::size_t> kept; ///< a hash of the song that was kept
};

/// The names of the songs kept since the last call, without those that are gone. Forgets them.
[[nodiscard]] std::vector<std::string> TakeKeptSongs();

} // namespace sprout
