// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace sprout {

/// Keeps what was not saved where the system ends the program and nobody can be asked.
class SongKeeper {
public:
    /// Writes the shared song into a new file of `UserSongs`, beside all that is there, and notes it for the next
    /// start. The shared song stays as it is. Returns the name of the file; empty where there is nothing to keep: no
    /// change, no track, or a song that this keeper has kept already. Throws `RunTimeError` where it cannot be written.
    std::string KeepUnsavedSong();

private:
    std::optional<std::size_t> kept; ///< a number of the song that was kept
};

/// The songs that were kept since the last call, by their names, without those that are gone. Forgets them.
[[nodiscard]] std::vector<std::string> TakeKeptSongs();

} // namespace sprout
