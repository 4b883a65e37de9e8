// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/FilePaths.h"

#include <algorithm>
#include <system_error>
#include <vector>

#include "base/FolderFiles.h"
#include "base/Text.h"

namespace sprout {

namespace fs = std::filesystem;

fs::path AsFolder(const fs::path& folder)
{
    return folder.empty() || !folder.has_filename() ? folder : folder / "";
}

fs::path NamedFile(const fs::path& folder, std::string_view name, std::string_view extension)
{
    const bool leadsOut = name.find(fs::path::preferred_separator) != std::string_view::npos ||
                          name.find('/') != std::string_view::npos || name.find('\0') != std::string_view::npos;
    if (leadsOut || Trim(name).empty())
        return {};
    return folder.native() + std::string(name) + std::string(extension);
}

fs::path ThroughLinks(const fs::path& path)
{
    std::error_code error;
    if (!fs::is_symlink(path, error))
        return path;
    const fs::path resolved = fs::weakly_canonical(path, error);
    return error ? path : resolved;
}

std::string SafeFileName(std::string_view name)
{
    std::string safe(name);
    for (char& c : safe)
        if (std::string_view("./\\:*?<>\"").find(c) != std::string_view::npos)
            c = '_';
    return safe;
}

std::string ChosenFolder(const fs::path& file)
{
    const std::string text = PathText(file);
    const auto separator = text.find_last_of('/');
    return separator == std::string::npos || separator == 0 ? std::string() : text.substr(0, separator + 1);
}

bool HoldsFile(const fs::path& folder)
{
    const std::vector<fs::directory_entry> entries = EntriesOfFolder(folder);
    return std::any_of(entries.begin(), entries.end(), [](const fs::directory_entry& entry) {
        std::error_code error;
        return entry.path().filename().native().front() != '.' && entry.is_regular_file(error);
    });
}

std::string BaseName(const fs::path& path)
{
    return PathText(path.stem());
}

std::string PathText(const fs::path& path)
{
    return path.native();
}

} // namespace sprout
