// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <locale>
#include <stdexcept>

namespace sprout {

namespace {

constexpr char32_t kNoCharacter = 0xFFFFFFFF;

// Windows-1252 from 0x80 to 0x9F; the five unassigned bytes represent themselves.
constexpr std::array<char32_t, 32> kUpperControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

struct Decoded {
    char32_t character = kNoCharacter;
    std::size_t bytes = 1;
};

bool IsTrail(unsigned char byte)
{
    return (byte & 0xC0) == 0x80;
}

/// The first character of `text`; `kNoCharacter` if its bytes are not UTF-8.
Decoded DecodeFirst(std::string_view text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t count = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < count)
        return {};
    char32_t character = lead & (0x7Fu >> count);
    for (std::size_t i = 1; i < count; ++i) {
        const auto trail = static_cast<unsigned char>(text[i]);
        if (!IsTrail(trail))
            return {};
        character = (character << 6) | (trail & 0x3Fu);
    }
    const char32_t least = count == 4 ? 0x10000 : count == 3 ? 0x800 : 0x80;
    if (character < least || character > 0x10FFFF || (character >= 0xD800 && character <= 0xDFFF))
        return {};
    return {character, count};
}

void AppendUtf8(std::string& text, char32_t character)
{
    const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        put(0xE0 | (character >> 12));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xF0 | (character >> 18));
        put(0x80 | ((character >> 12) & 0x3F));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

/// The code page's byte for a character, or -1.
int PageByte(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<int>(character);
    const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
    return found == kUpperControls.end() ? -1 : 0x80 + static_cast<int>(found - kUpperControls.begin());
}

/// Letters beyond ASCII need a locale with Unicode tables; without one they keep their case.
wchar_t LowerLetter(wchar_t letter)
{
    static const std::locale locale = [] {
        try {
            return std::locale("C.UTF-8");
        } catch (const std::runtime_error&) {
            return std::locale::classic();
        }
    }();
    return std::use_facet<std::ctype<wchar_t>>(locale).tolower(letter);
}

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

std::string_view Trim(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string LowerCase(std::string_view text)
{
    std::string lower;
    lower.reserve(text.size());
    while (!text.empty()) {
        const Decoded next = DecodeFirst(text);
        if (next.character == kNoCharacter)
            lower.push_back(text.front());
        else if (next.character < 0x80)
            lower.push_back(text.front() >= 'A' && text.front() <= 'Z' ? static_cast<char>(text.front() + 32)
                                                                       : text.front());
        else
            AppendUtf8(lower, static_cast<char32_t>(LowerLetter(static_cast<wchar_t>(next.character))));
        text.remove_prefix(next.bytes);
    }
    return lower;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b)
{
    return a == b || LowerCase(a) == LowerCase(b);
}

bool BeginsIgnoringCase(std::string_view text, std::string_view prefix)
{
    return LowerCase(text).starts_with(LowerCase(prefix));
}

bool IsUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        const Decoded next = DecodeFirst(bytes);
        if (next.character == kNoCharacter)
            return false;
        bytes.remove_prefix(next.bytes);
    }
    return true;
}

std::string StoredBytes(std::string_view text)
{
    if (IsAscii(text) || !IsUtf8(text))
        return std::string(text);
    std::string bytes;
    for (std::string_view rest = text; !rest.empty();) {
        const Decoded next = DecodeFirst(rest);
        const int byte = PageByte(next.character);
        if (byte < 0)
            return std::string(text);
        bytes.push_back(static_cast<char>(byte));
        rest.remove_prefix(next.bytes);
    }
    return IsUtf8(bytes) ? std::string(text) : bytes;
}

std::string TextFromStored(std::string_view bytes)
{
    if (IsUtf8(bytes))
        return std::string(bytes);
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        AppendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80u] : byte);
    }
    return text;
}

std::string StoredText(std::string_view text)
{
    return TextFromStored(StoredBytes(text));
}

std::string NameKey(std::string_view name)
{
    return LowerCase(StoredText(name));
}

std::vector<std::string> Split(std::string_view text, char separator)
{
    std::vector<std::string> parts;
    for (auto end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.emplace_back(text);
    return parts;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count)
{
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count)
        end += DecodeFirst(text.substr(end)).bytes;
    return text.substr(0, end);
}

std::string_view CharactersInBytes(std::string_view text, std::size_t bytes)
{
    if (text.size() <= bytes)
        return text;
    while (bytes > 0 && (static_cast<unsigned char>(text[bytes]) & 0xC0U) == 0x80U)
        --bytes;
    return text.substr(0, bytes);
}

} // namespace sprout
