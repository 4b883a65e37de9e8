// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sprout {

/// `path` with `extension` behind it, unless it ends so already, in any letter case. extension: with its dot.
[[nodiscard]] std::filesystem::path WithExtension(const std::filesystem::path& path, std::string_view extension);

/// The name that a song's sound file is offered at first: its title and `extension`, with "_" for what file names
/// cannot hold, and no longer than file systems take.
[[nodiscard]] std::string OfferedName(std::string_view songTitle, std::string_view extension);

} // namespace sprout
