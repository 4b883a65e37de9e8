// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/FolderFiles.h"

namespace sprout {

using SongFile = FolderFile;

/// The songs in a folder, sorted by name, ignoring case. Hidden files are skipped. A folder that cannot be read has
/// none.
[[nodiscard]] std::vector<SongFile> ListSongs(const std::filesystem::path& folder);

/// The songs of `SongFolders`, likewise: the user's own and those of the class.
[[nodiscard]] std::vector<SongFile> ListOwnAndClassSongs();

/// The first song whose name equals `name` ignoring case; null if there is none.
[[nodiscard]] const SongFile* FindSong(std::span<const SongFile> songs, std::string_view name);

/// True if a song of that name came with the program.
[[nodiscard]] bool IsSuppliedSong(std::string_view name);

/// `name` followed by the first number from 1 on that makes it a name that no song has.
[[nodiscard]] std::string FreeCopyName(std::span<const SongFile> songs, std::string_view name);

/// The existing or future path of a song in `UserSongs`: a file whose name differs only in case, if there is no other.
/// Empty if the title cannot be a file name.
[[nodiscard]] std::filesystem::path PlaceOfSong(std::string_view title);

/// The path of the song to open under that title: one of the class if the user has none, otherwise `PlaceOfSong`.
[[nodiscard]] std::filesystem::path SongFileToOpen(std::string_view title);

/// Copies a song under another name into its folder, or one of the class into `UserSongs`. The copy appears completely
/// or not at all and replaces no other file. Throws `RunTimeError` or an exception of the standard library.
void CopySong(const SongFile& song, std::string_view newName);

/// Renames a song; no other file is replaced. Throws like `CopySong`.
void RenameSong(const SongFile& song, std::string_view newName);

/// Deletes a song's file; a file that is already gone is not an error. Throws `RunTimeError` if the file stays.
void DeleteSong(const SongFile& song);

} // namespace sprout
