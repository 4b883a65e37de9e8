// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "base/FolderFiles.h"

namespace sprout {

/// Where files of one kind are: in a folder of the user's own, and in the one that a school gives the whole class. Of
/// equal names, in any letter case, the user's own file counts. The program never writes into the class's folder.
struct OwnAndClass {
    std::filesystem::path Own;
    std::filesystem::path Class; ///< empty if there is none
};

/// Sets `ClassRoot` to the folder that the setting "ClassFolder" names: a whole path, otherwise there is none.
void FindClassFolder();

[[nodiscard]] OwnAndClass BeatFolders();
[[nodiscard]] OwnAndClass TuneFolders();
[[nodiscard]] OwnAndClass SongFolders();

/// The file with that name and extension, whatever the case of its letters: the user's own or, if there is none, the
/// class's. Empty if there is neither.
[[nodiscard]] std::filesystem::path FindNamedFile(const OwnAndClass& folders, std::string_view name,
                                                  std::string_view extension);

/// The files of both folders, as of `FilesInFolder`, without those of the class that an own one hides.
[[nodiscard]] std::vector<FolderFile> FilesInFolders(const OwnAndClass& folders, std::string_view extension);

} // namespace sprout
