// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sprout {

/// The path of a folder with a separator at its end, as in the folder settings.
[[nodiscard]] std::filesystem::path AsFolder(const std::filesystem::path& folder);

/// `folder` + `name` + `extension`. Empty, which names no file, if `name` is blank or contains a separator or a zero
/// byte: names come from other people's files and must not lead out of the folder.
[[nodiscard]] std::filesystem::path NamedFile(const std::filesystem::path& folder, std::string_view name,
                                              std::string_view extension);

/// The target of a link at `path`, so that the link stays a link; any other path as it is.
[[nodiscard]] std::filesystem::path ThroughLinks(const std::filesystem::path& path);

/// `name` with "_" for each character that is not allowed in file names.
[[nodiscard]] std::string SafeFileName(std::string_view name);

/// The folder of a chosen file with a separator at its end, as in the settings; empty if it has none.
[[nodiscard]] std::string ChosenFolder(const std::filesystem::path& file);

/// True if `folder` contains at least one plain file that is not hidden; sub-folders do not count.
[[nodiscard]] bool HoldsFile(const std::filesystem::path& folder);

/// The base name of a path in UTF-8: after the last separator, before the last dot.
[[nodiscard]] std::string BaseName(const std::filesystem::path& path);

/// The UTF-8 text of a path.
[[nodiscard]] std::string PathText(const std::filesystem::path& path);

} // namespace sprout
