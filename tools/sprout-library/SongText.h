// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace sprout {

/// A painted run of cells, both ends inclusive.
struct CellRun {
    std::int32_t First = 0;
    std::int32_t Last = 0;
};

struct SongTextTrack {
    std::string TuneName;
    std::vector<CellRun> Runs;
};

/// A song as written in library/songs/.
struct SongText {
    std::string Title; ///< the file's base name
    std::string CreatedBy;
    std::int32_t Tempo = 0; ///< cells per minute
    std::vector<SongTextTrack> Tracks;
};

/// Reads a song's text. Its rows are
///     Author | TEXT
///     Tempo | PERCENT
///     Bar | CELLS
///     Track | TUNE | BARS
/// where BARS are runs such as "1-4, 9-12", counted in bars. Throws `RunTimeError`.
[[nodiscard]] SongText ReadSongText(const std::filesystem::path& file);

/// Makes the shared song from a text, with tunes from `UserTunes`. Throws `RunTimeError` if a tune is missing.
void BuildSong(const SongText& text);

} // namespace sprout
