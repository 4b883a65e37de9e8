// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/xdg/Environment.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <stdexcept>

#include "base/ByteCursor.h"
#include "base/Log.h"
#include "base/Text.h"

namespace sprout {

namespace fs = std::filesystem;

fs::path FromEnvironment(const char* name)
{
    // Safe in any thread: nothing in the program changes its environment.
    const char* value = std::getenv(name);
    return value ? value : "";
}

fs::path HomeFolder()
{
    fs::path home = FromEnvironment("HOME");
    if (!home.empty())
        return home;
    constexpr std::size_t longestEntry = 16384;
    std::array<char, longestEntry> texts{};
    passwd user{};
    passwd* found = nullptr;
    const bool isKnown = ::getpwuid_r(::getuid(), &user, texts.data(), texts.size(), &found) == 0 && found;
    return isKnown && user.pw_dir ? user.pw_dir : "";
}

fs::path UserConfigFolder()
{
    const fs::path named = FromEnvironment("XDG_CONFIG_HOME");
    if (named.is_absolute())
        return named;
    const fs::path home = HomeFolder();
    return home.empty() ? fs::path() : home / ".config";
}

std::vector<fs::path> DataFolders()
{
    std::vector<fs::path> folders;
    const fs::path own = FromEnvironment("XDG_DATA_HOME");
    folders.push_back(own.is_absolute() ? own : HomeFolder() / ".local/share");
    const std::string named = FromEnvironment("XDG_DATA_DIRS").native();
    for (const std::string& folder : Split(named.empty() ? "/usr/local/share:/usr/share" : named, ':'))
        folders.emplace_back(folder);
    std::erase_if(folders, [](const fs::path& folder) { return !folder.is_absolute(); });
    return folders;
}

std::string FileText(const fs::path& path)
{
    constexpr std::uint64_t most = 1U << 20;
    try {
        FileSource source(path);
        std::string text(static_cast<std::size_t>(std::min(source.Size(), most)), '\0');
        source.Read(0, std::as_writable_bytes(std::span(text)));
        return text;
    } catch (const std::runtime_error& error) {
        LogFailure("Reading a file of the desktop", error);
        return {};
    }
}

} // namespace sprout
