// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sprout {

/// `path` with `extension` appended, unless it already ends with it in any letter case. extension: with its dot.
[[nodiscard]] std::filesystem::path WithExtension(const std::filesystem::path& path, std::string_view extension);

/// The name first offered for a song's sound file: its title and `extension`, with "_" for characters that file names
/// cannot hold, and no longer than file systems allow.
[[nodiscard]] std::string OfferedName(std::string_view songTitle, std::string_view extension);

} // namespace sprout
