// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace sprout {

/// One line of a table: its cells without leading and trailing blanks, and its position.
struct TableRow {
    std::vector<std::string> cells;
    std::filesystem::path file;
    int line = 0;

    /// "FILE:LINE: ", for messages.
    [[nodiscard]] std::string Place() const;
};

/// Reads a UTF-8 text of cells separated by vertical bars; skips empty lines and lines that begin with "#".
/// Throws `RunTimeError` if the file cannot be read or a row has fewer than `least` or more than `most` cells.
[[nodiscard]] std::vector<TableRow> ReadTable(const std::filesystem::path& file, std::size_t least, std::size_t most);

/// The number in a cell, from `least` to `most`. Throws `RunTimeError` for anything else.
[[nodiscard]] double CellNumber(const TableRow& row, std::size_t cell, double least, double most);

/// The bytes of a file. Throws `RunTimeError`.
[[nodiscard]] std::string ReadWholeFile(const std::filesystem::path& file);

} // namespace sprout
