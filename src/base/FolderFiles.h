// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// A file in a folder. Name: without its extension. Path: as in the folder, whatever the case of its letters.
struct FolderFile {
    std::string Name;
    std::filesystem::path Path;
};

/// Whether files whose names begin with a dot are listed.
enum class DotFiles { No, Yes };

/// The readable entries of a folder, in no particular order; none if the folder does not exist.
[[nodiscard]] std::vector<std::filesystem::directory_entry> EntriesOfFolder(const std::filesystem::path& folder);

/// The plain files of a folder that have a name followed by `extension`, in any letter case. They are in alphabetical
/// order, ignoring case; names that differ only in case are ordered by their bytes. `extension`: with its dot. None if
/// the folder cannot be read.
[[nodiscard]] std::vector<FolderFile> FilesInFolder(const std::filesystem::path& folder, std::string_view extension,
                                                    DotFiles dotFiles = DotFiles::No);

/// The names of `FilesInFolder`.
[[nodiscard]] std::vector<std::string> NamesInFolder(const std::filesystem::path& folder, std::string_view extension);

} // namespace sprout
