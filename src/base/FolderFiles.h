// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace sprout {

/// A file of a folder. Name: without its extension. Path: as the folder has it, whatever the case of its letters.
struct FolderFile {
    std::string Name;
    std::filesystem::path Path;
};

/// Whether files whose names begin with a dot are listed.
enum class DotFiles { No, Yes };

/// The entries of a folder, in no order: those that can be read, none where there is no such folder.
[[nodiscard]] std::vector<std::filesystem::directory_entry> EntriesOfFolder(const std::filesystem::path& folder);

/// The plain files of a folder that have a name and behind it `extension`, in any letter case. They stand in
/// alphabetical order without regard to case; those that differ in case alone, by their bytes. `extension`: with its
/// dot. None where the folder cannot be read.
[[nodiscard]] std::vector<FolderFile> FilesInFolder(const std::filesystem::path& folder, std::string_view extension,
                                                    DotFiles dotFiles = DotFiles::No);

/// The names of `FilesInFolder`.
[[nodiscard]] std::vector<std::string> NamesInFolder(const std::filesystem::path& folder, std::string_view extension);

} // namespace sprout
