// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/PseudoText.h"

#include <array>
#include <cstddef>

namespace sprout {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kVowels = "AEIOUaeiou";

struct Letter {
    char plain;
    std::string_view marked;
};

constexpr std::array kLetters{
    Letter{'A', "À"}, Letter{'C', "Ç"}, Letter{'E', "É"}, Letter{'I', "Î"}, Letter{'N', "Ñ"},
    Letter{'O', "Ö"}, Letter{'S', "Ŝ"}, Letter{'U', "Û"}, Letter{'Y', "Ý"}, Letter{'a', "à"},
    Letter{'c', "ç"}, Letter{'e', "ê"}, Letter{'g', "ĝ"}, Letter{'i', "î"}, Letter{'n', "ñ"},
    Letter{'o', "ò"}, Letter{'s', "ŝ"}, Letter{'u', "ü"}, Letter{'y', "ý"}, Letter{'z', "ž"},
};

std::string Marked(char letter)
{
    for (const Letter& candidate : kLetters)
        if (candidate.plain == letter)
            return std::string(candidate.marked);
    return {letter};
}

/// The length of what stays as it is at the start of `text`: a place (%1) or a file pattern (*.wav).
std::size_t UntouchedLength(std::string_view text)
{
    if (text.size() > 1 && text[0] == '%' && text[1] >= '1' && text[1] <= '9')
        return 2;
    if (!text.starts_with("*."))
        return 0;
    const std::size_t end = text.find_first_of(");,| ");
    return end == std::string_view::npos ? text.size() : end;
}

} // namespace

std::string PseudoText(std::string_view english)
{
    const std::size_t first = english.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return std::string(english);
    const std::size_t end = english.find_last_not_of(kBlanks) + 1;
    std::string marked;
    std::size_t lacking = 0; // thirds of a letter that the text should be longer by now
    for (std::size_t i = first; i < end; ++i) {
        if (const std::size_t untouched = UntouchedLength(english.substr(i, end - i)); untouched > 0) {
            marked += english.substr(i, untouched);
            i += untouched - 1;
            continue;
        }
        const std::string letter = Marked(english[i]);
        marked += letter;
        ++lacking;
        // Vowels are drawn out, so that words get longer and not only lines.
        if (lacking >= 3 && kVowels.find(english[i]) != std::string_view::npos) {
            marked += letter;
            lacking -= 3;
        }
    }
    marked.append((lacking + 2) / 3, '~');
    return std::string(english.substr(0, first)).append("[").append(marked).append("]").append(english.substr(end));
}

} // namespace sprout
