// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/GivenSong.h"

#include <algorithm>
#include <string_view>
#include <system_error>

namespace sprout {

namespace fs = std::filesystem;

fs::path GivenSong(std::span<const char* const> arguments)
{
    if (arguments.empty())
        return {};
    const auto words = arguments.subspan(1);
    const auto given = std::find_if(words.begin(), words.end(),
                                    [](std::string_view word) { return !word.empty() && !word.starts_with('-'); });
    if (given == words.end())
        return {};
    std::error_code error;
    const fs::path absolute = fs::absolute(*given, error);
    return error ? fs::path(*given) : absolute;
}

} // namespace sprout
