// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Log.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "base/Errors.h"

namespace sprout {

namespace {

bool LogIsWanted()
{
    const char* const wish = std::getenv("SPROUT_LOG");
    return wish && std::string_view(wish) == "1";
}

bool IsControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

/// The names of files come from outside: they must neither forge a line nor command the terminal.
std::string Escaped(std::string_view text)
{
    constexpr std::array digits{'0', '1', '2', '3', '4', '5', '6', '7', '8', '9', 'a', 'b', 'c', 'd', 'e', 'f'};
    std::string escaped;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (IsControl(c))
            escaped.append("\\x").append({digits[byte >> 4U], digits[byte & 0xFU]});
        else
            escaped += c;
    }
    return escaped;
}

} // namespace

void Log(std::string_view line)
{
    if (!LogIsWanted())
        return;
    const std::string whole = "sprout: " + Escaped(line) + "\n";
    static_cast<void>(std::fwrite(whole.data(), 1, whole.size(), stderr));
}

void LogFailure(std::string_view work, const std::exception& error)
{
    if (LogIsWanted())
        Log(std::string(work) + ": " + ErrorWords(error).English());
}

} // namespace sprout
