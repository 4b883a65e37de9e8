// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sprout {

/// The path of a folder with a separator at its end, as the folder settings are kept.
[[nodiscard]] std::filesystem::path AsFolder(const std::filesystem::path& folder);

/// `folder` + `name` + `extension`; empty, which names no file, where `name` is blank or holds a separator or a zero
/// byte: names come from files of strangers and must not lead out of the folder.
[[nodiscard]] std::filesystem::path NamedFile(const std::filesystem::path& folder, std::string_view name,
                                              std::string_view extension);

/// What a link at `path` leads to, so that the link stays a link; any other path as it is.
[[nodiscard]] std::filesystem::path ThroughLinks(const std::filesystem::path& path);

/// `name` with "_" for each character that file names cannot hold.
[[nodiscard]] std::string SafeFileName(std::string_view name);

/// The folder of a chosen file with a separator at its end, as the settings keep it; empty where it has none.
[[nodiscard]] std::string ChosenFolder(const std::filesystem::path& file);

/// True when `folder` holds at least one plain file that is not hidden; sub-folders do not count.
[[nodiscard]] bool HoldsFile(const std::filesystem::path& folder);

/// The base name of a path in UTF-8: behind the last separator, before the last dot.
[[nodiscard]] std::string BaseName(const std::filesystem::path& path);

/// The UTF-8 text of a path.
[[nodiscard]] std::string PathText(const std::filesystem::path& path);

} // namespace sprout
