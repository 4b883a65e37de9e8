// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace sprout {

/// The value of a variable; empty if it is not set. Any thread.
[[nodiscard]] std::filesystem::path FromEnvironment(const char* name);

/// The user's home folder; empty if there is none. Any thread.
[[nodiscard]] std::filesystem::path HomeFolder();

/// The folder of the user's settings: XDG_CONFIG_HOME, else .config in the home folder; empty if there is neither. Any
/// thread.
[[nodiscard]] std::filesystem::path UserConfigFolder();

/// The folders with the desktop's shared files, the most important first: the user's, then the machine's. Any thread.
[[nodiscard]] std::vector<std::filesystem::path> DataFolders();

/// The text of a small file, at most its first megabyte; empty if the file is missing or unreadable.
[[nodiscard]] std::string FileText(const std::filesystem::path& path);

} // namespace sprout
