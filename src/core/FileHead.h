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

/// The text head of a song or tune file, up to and with "Data=". marker: "TqSng" or "TqTun"; description: what stands
/// behind the family name in "File Description=".
[[nodiscard]] std::string FileHead(std::string_view marker, std::string_view description);

/// What stands behind the array: four zero bytes and the end mark.
[[nodiscard]] std::string_view FileTail();

/// Replaces a file by a head, an array and `FileTail`. Throws like `PrepareToReplace` and `Files::ReplaceFile`.
void ReplaceDataFile(const std::filesystem::path& path, std::string_view head, const LongsWriter& data, Flush flush);

/// Makes such a file, on the disk when it returns; false where something has that name already, which stays. Throws
/// likewise.
[[nodiscard]] bool WriteNewDataFile(const std::filesystem::path& path, std::string_view head, const LongsWriter& data);

/// The value of a line CR LF key=value of the head, which is searched in the first 1000 bytes without regard to case;
/// `fallback` where the line or its end is missing.
[[nodiscard]] std::string HeadValue(ByteSource& source, std::string_view key, std::string_view fallback);

/// The number behind "File Version="; 0 where there is none.
[[nodiscard]] float FileVersion(ByteSource& source);

/// The byte behind CR LF "Data="; nothing where it is not found.
[[nodiscard]] std::optional<std::uint64_t> FindHeadData(ByteSource& source);

} // namespace sprout
