// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/ByteCursor.h"
#include "base/Longs.h"
#include "service/Files.h"

namespace sprout {

/// The text head of a song or tune file, up to and including "Data=". marker: "TqSng" or "TqTun"; description: the text
/// after the family name in "File Description=".
[[nodiscard]] std::string FileHead(std::string_view marker, std::string_view description);

/// The bytes after the array: four zero bytes and the end mark.
[[nodiscard]] std::string_view FileTail();

/// Replaces a file with a head, an array and `FileTail`. Throws like `PrepareToReplace` and `Files::ReplaceFile`.
void ReplaceDataFile(const std::filesystem::path& path, std::string_view head, const LongsWriter& data, Flush flush);

/// Creates such a file, which is on the disk when it returns; returns false, and leaves it alone, if something already
/// has that name. Throws likewise.
[[nodiscard]] bool WriteNewDataFile(const std::filesystem::path& path, std::string_view head, const LongsWriter& data);

/// The value of a line CR LF key=value in the first 1000 bytes of the head, ignoring case; `fallback` if the line or
/// its end is missing.
[[nodiscard]] std::string HeadValue(ByteSource& source, std::string_view key, std::string_view fallback);

/// The number after "File Version="; 0 if there is none.
[[nodiscard]] float FileVersion(ByteSource& source);

/// The byte after CR LF "Data="; nothing if it is not found.
[[nodiscard]] std::optional<std::uint64_t> FindHeadData(ByteSource& source);

} // namespace sprout
