// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tunes/TuneIndex.h"

namespace sprout {

/// Tunes in a row of the grid.
inline constexpr std::int32_t kTuneColumns = 18;

/// What the menu of the grid does to the chosen tune.
enum class TuneMove { Up = 0, Down = 1, Left = 2, Right = 3 };

/// The file of a tune in `UserTunes`; empty, which names no file, for a name that can have none.
[[nodiscard]] std::filesystem::path TuneFile(std::string_view name);

/// Names by their places in the index; names of one place keep their order.
[[nodiscard]] std::vector<std::string> InTuneOrder(std::vector<std::string> names, const TuneIndex& index);

/// Reads the heads of all tunes of `UserTunes` into `TuneTable`, under the working sign. A tune that cannot be read is
/// told in a message and leaves an empty entry.
void ReadTuneTable();

/// Writes the order of `TuneTable` to the index.
void SaveTuneOrder();

/// True for an index of `TuneTable` that holds a tune; below 1 nothing is chosen.
[[nodiscard]] bool IsInTuneTable(std::int32_t index);

/// The first tune of that name in any letter case; 0 where there is none, and for an empty name.
[[nodiscard]] std::int32_t FindInTuneTable(std::string_view name);

/// Where a move takes the chosen one of `count` tunes; 0 where it cannot go.
[[nodiscard]] std::int32_t TuneMoveTarget(TuneMove move, std::int32_t selected, std::int32_t count);

} // namespace sprout
