// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/Table.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/Errors.h"
#include "base/Text.h"

namespace sprout {

std::string TableRow::Place() const
{
    return file.filename().native() + ":" + std::to_string(line) + ": ";
}

std::string ReadWholeFile(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::string bytes((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    if (!stream)
        throw RunTimeError(Words::Text("The file %1 cannot be read.", file.native()));
    return bytes;
}

std::vector<TableRow> ReadTable(const std::filesystem::path& file, std::size_t least, std::size_t most)
{
    std::istringstream text(ReadWholeFile(file));
    std::vector<TableRow> rows;
    std::string line;
    for (int number = 1; std::getline(text, line); ++number) {
        if (Trim(line).empty() || Trim(line).front() == '#')
            continue;
        TableRow row{{}, file, number};
        for (const std::string& cell : Split(line, '|'))
            row.cells.emplace_back(Trim(cell));
        if (row.cells.size() < least || row.cells.size() > most)
            throw RunTimeError(Words::Text("%1the row has %2 cells.", row.Place(), row.cells.size()));
        rows.push_back(std::move(row));
    }
    return rows;
}

double CellNumber(const TableRow& row, std::size_t cell, double least, double most)
{
    const std::string& text = row.cells.at(cell);
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !(number >= least && number <= most))
        throw RunTimeError(Words::Text("%1\"%2\" is no number that may stand there.", row.Place(), text));
    return number;
}

} // namespace sprout
