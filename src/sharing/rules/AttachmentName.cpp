// SPDX-License-Identifier: GPL-3.0-or-later
#include "sharing/rules/AttachmentName.h"

#include "base/Extensions.h"
#include "base/Text.h"
#include "sharing/rules/ExportName.h"

namespace sprout {

namespace {

constexpr std::size_t kMostBytes = 200;

bool IsControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

} // namespace

std::string AttachmentName(std::string_view songTitle)
{
    const bool namesNothing = songTitle.find_first_not_of(" .\t\r\n") == std::string_view::npos;
    std::string name(namesNothing ? "Song" : songTitle);
    for (char& c : name)
        if (IsControl(c) || c == '|')
            c = '_';
    // Windows allows no blank at the end of a name.
    return OfferedName(Trim(CharactersInBytes(Trim(name), kMostBytes)), kWmaExtension);
}

} // namespace sprout
