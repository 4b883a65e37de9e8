// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace sprout {

/// The value of a variable; empty where it is not set. Any thread.
[[nodiscard]] std::filesystem::path FromEnvironment(const char* name);

/// The user's home folder; empty where there is none. Any thread.
[[nodiscard]] std::filesystem::path HomeFolder();

/// The folders that hold the desktop's shared files, the most important first: the user's, then the machine's. Any
/// thread.
[[nodiscard]] std::vector<std::filesystem::path> DataFolders();

/// The text of a small file, at most its first megabyte; empty where the file is missing or cannot be read.
[[nodiscard]] std::string FileText(const std::filesystem::path& path);

} // namespace sprout
