// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "core/FolderOrder.h"

namespace sprout {

/// The file of a tune in `UserTunes`, where tunes are saved; empty, which names no file, if the name cannot have one.
[[nodiscard]] std::filesystem::path TuneFile(std::string_view name);

/// The file that a tune is read from: one of the class if the user has none of that name, otherwise `TuneFile`.
[[nodiscard]] std::filesystem::path TuneFileToRead(std::string_view name);

/// The file with the order of the tunes in `UserTunes`.
[[nodiscard]] std::filesystem::path TuneIndexFile();

/// The names sorted by their places in the index; names with the same place keep their order.
[[nodiscard]] std::vector<std::string> InTuneOrder(std::vector<std::string> names, const FolderOrder& index);

/// Reads the heads of all tunes of `TuneFolders` into `TuneTable`, under the working sign. A tune that cannot be read
/// is reported in a message and leaves an empty entry.
void ReadTuneTable();

/// Writes the order of `TuneTable` to the index.
void SaveTuneOrder();

/// True if an index of `TuneTable` has a tune; below 1 nothing is chosen.
[[nodiscard]] bool IsInTuneTable(std::int32_t index);

/// The first tune with that name in any letter case; 0 if there is none or the name is empty.
[[nodiscard]] std::int32_t FindInTuneTable(std::string_view name);

} // namespace sprout
