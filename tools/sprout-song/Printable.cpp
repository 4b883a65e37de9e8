// SPDX-License-Identifier: GPL-3.0-or-later
#include "sprout-song/Printable.h"

#include <cstddef>

namespace sprout {

namespace {

unsigned Byte(std::string_view text, std::size_t place)
{
    return static_cast<unsigned char>(text[place]);
}

bool Continues(std::string_view text, std::size_t place)
{
    return place < text.size() && (Byte(text, place) & 0xC0) == 0x80;
}

/// Number of bytes of the UTF-8 character at `place`; 0 if there is none.
std::size_t CharacterBytes(std::string_view text, std::size_t place)
{
    const unsigned first = Byte(text, place);
    const std::size_t bytes = first < 0x80   ? 1
                              : first < 0xC2 ? 0
                              : first < 0xE0 ? 2
                              : first < 0xF0 ? 3
                              : first < 0xF5 ? 4
                                             : 0;
    for (std::size_t i = 1; i < bytes; ++i)
        if (!Continues(text, place + i))
            return 0;
    return bytes;
}

void AppendHex(std::string& to, std::string_view prefix, unsigned value)
{
    constexpr std::string_view digits = "0123456789abcdef";
    to += prefix;
    to += digits[value >> 4];
    to += digits[value & 0xF];
}

/// The number of a control character of `bytes` bytes; -1 for any other character.
int ControlAt(std::string_view text, std::size_t place, std::size_t bytes)
{
    const unsigned first = Byte(text, place);
    if (bytes == 1 && (first < 0x20 || first == 0x7F))
        return static_cast<int>(first);
    if (bytes == 2 && first == 0xC2 && Byte(text, place + 1) < 0xA0)
        return static_cast<int>(Byte(text, place + 1));
    return -1;
}

} // namespace

std::string Printable(std::string_view text)
{
    std::string shown;
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t bytes = CharacterBytes(text, place);
        const int control = bytes == 0 ? -1 : ControlAt(text, place, bytes);
        if (bytes == 0)
            AppendHex(shown, "\\x", Byte(text, place));
        else if (control >= 0)
            AppendHex(shown, "\\u00", static_cast<unsigned>(control));
        else
            shown += text.substr(place, bytes);
        place += bytes == 0 ? 1 : bytes;
    }
    return shown;
}

std::string PrintableLines(std::string_view text)
{
    constexpr std::string_view lineEnd = "\r\n";
    std::string shown;
    for (auto end = text.find(lineEnd); end != std::string_view::npos; end = text.find(lineEnd)) {
        shown += Printable(text.substr(0, end)) + '\n';
        text.remove_prefix(end + lineEnd.size());
    }
    return shown + Printable(text);
}

std::string PrintableJson(std::string_view json)
{
    // Those below the blank are already escaped, and line ends between the facts belong to JSON.
    std::string shown;
    for (std::size_t place = 0; place < json.size();) {
        const std::size_t bytes = CharacterBytes(json, place);
        const int control = bytes == 0 ? -1 : ControlAt(json, place, bytes);
        if (control > 0x20)
            AppendHex(shown, "\\u00", static_cast<unsigned>(control));
        else
            shown += json.substr(place, bytes == 0 ? 1 : bytes);
        place += bytes == 0 ? 1 : bytes;
    }
    return shown;
}

} // namespace sprout
