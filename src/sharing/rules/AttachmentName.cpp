// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/rules/AttachmentName.h"

#include "core/Paths.h"
#include "core/Text.h"

namespace sprout {

namespace {

constexpr std::size_t kMostBytes = 200;

bool IsControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

bool IsTrail(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

/// As many whole characters of a UTF-8 text as fit into some bytes.
std::string_view FirstBytes(std::string_view text, std::size_t most)
{
    if (text.size() <= most)
        return text;
    std::size_t end = most;
    while (end > 0 && IsTrail(text[end]))
        --end;
    return text.substr(0, end);
}

} // namespace

std::string AttachmentName(std::string_view songTitle)
{
    const bool namesNothing = songTitle.find_first_not_of(" .\t\r\n") == std::string_view::npos;
    std::string name = SafeFileName(namesNothing ? "Song" : songTitle);
    for (char& c : name)
        if (IsControl(c) || c == '|')
            c = '_';
    // Windows takes no blank at the end of a name.
    return std::string(Trim(FirstBytes(Trim(name), kMostBytes))) + ".wma";
}

} // namespace sprout
