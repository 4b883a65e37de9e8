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

/// The songs of a folder, by name without regard to case. Hidden files are none. A folder that cannot be read has none.
[[nodiscard]] std::vector<SongFile> ListSongs(const std::filesystem::path& folder);

/// The first song whose name equals `name` ignoring case; null if there is none.
[[nodiscard]] const SongFile* FindSong(std::span<const SongFile> songs, std::string_view name);

/// `name` with the first number from 1 on behind it that gives a name no song has.
[[nodiscard]] std::string FreeCopyName(std::span<const SongFile> songs, std::string_view name);

/// Where the song of a title lies or would lie in `UserSongs`: a file whose name differs in case only, if there is no
/// other. Empty for a title that cannot be the name of a file.
[[nodiscard]] std::filesystem::path PlaceOfSong(std::string_view title);

/// Copies a song under another name into its folder. The copy appears whole or not at all and takes no other file's
/// place. Throws `RunTimeError` or an exception of the standard library.
void CopySong(const SongFile& song, std::string_view newName);

/// Gives a song another name; no other file is replaced. Throws like `CopySong`.
void RenameSong(const SongFile& song, std::string_view newName);

/// Deletes a song's file; one that is gone already is fine. Throws `RunTimeError` if the file stays.
void DeleteSong(const SongFile& song);

} // namespace sprout
