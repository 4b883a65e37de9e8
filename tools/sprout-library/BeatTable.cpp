// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-library/BeatTable.h"

#include <array>
#include <charconv>
#include <set>

#include "base/Errors.h"
#include "base/Text.h"
#include "sprout-library/Table.h"

namespace sprout {

namespace {

std::uint32_t CellColour(const TableRow& row, std::size_t cell)
{
    const std::string& text = row.cells[cell];
    std::uint32_t colour = 0;
    const auto [end, error] = std::from_chars(text.data() + 1, text.data() + text.size(), colour, 16);
    if (text.size() != 7 || text.front() != '#' || error != std::errc() || end != text.data() + text.size())
        throw RunTimeError(Words::Text("%1\"%2\" is no colour such as #3C9D4B.", row.Place(), text));
    return colour;
}

bool IsNumber(const std::string& text)
{
    return text.find_first_not_of("0123456789") == std::string::npos;
}

BeatRecipe RecipeOf(const TableRow& row)
{
    BeatRecipe recipe;
    recipe.Name = row.cells[0];
    if (recipe.Name.size() < 3 || recipe.Name[1] != '_')
        throw RunTimeError(
            Words::Text("%1a beat's name begins with the letter of its family and an underscore.", row.Place()));
    recipe.Sound = row.cells[1];
    recipe.Pitched = !IsNumber(row.cells[2]);
    recipe.Key = recipe.Pitched ? KeyOfNote(row.cells[2]) : static_cast<int>(CellNumber(row, 2, 0, 127));
    recipe.Velocity = static_cast<int>(CellNumber(row, 3, 1, 127));
    recipe.HeldSeconds = CellNumber(row, 4, 0.01, 3);
    recipe.Seconds = CellNumber(row, 5, 0.05, 3);
    recipe.Glyph = row.cells[6];
    return recipe;
}

} // namespace

int KeyOfNote(std::string_view note)
{
    constexpr std::array<int, 7> semitones = {9, 11, 0, 2, 4, 5, 7}; // from A on
    if (note.size() >= 2 && note.front() >= 'A' && note.front() <= 'G') {
        const bool sharp = note[1] == '#';
        const std::string_view octave = note.substr(sharp ? 2 : 1);
        if (octave.size() == 1 && octave.front() >= '0' && octave.front() <= '8')
            return 12 * (octave.front() - '0' + 1) + semitones[static_cast<std::size_t>(note.front() - 'A')] +
                   (sharp ? 1 : 0);
    }
    throw RunTimeError(Words::Text("\"%1\" is no note such as C4 or F#3.", note));
}

std::vector<BeatRecipe> ReadBeatTable(const std::filesystem::path& file)
{
    std::vector<BeatRecipe> recipes;
    std::set<std::string> names;
    for (const TableRow& row : ReadTable(file, 7, 7)) {
        recipes.push_back(RecipeOf(row));
        if (!names.insert(LowerCase(recipes.back().Name)).second)
            throw RunTimeError(Words::Text("%1there is a beat of this name already.", row.Place()));
    }
    return recipes;
}

std::map<char, BeatFamily> ReadFamilyTable(const std::filesystem::path& file)
{
    std::map<char, BeatFamily> families;
    for (const TableRow& row : ReadTable(file, 6, 6)) {
        const char letter = row.cells[0].front();
        families[letter] = {letter,
                            row.cells[1],
                            CellColour(row, 2),
                            CellColour(row, 3),
                            CellColour(row, 4),
                            CellNumber(row, 5, -40, 0)};
    }
    return families;
}

} // namespace sprout
