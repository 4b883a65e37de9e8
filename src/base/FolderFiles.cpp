// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/FolderFiles.h"

#include <map>
#include <system_error>
#include <utility>

#include "base/Text.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

bool IsPlain(const fs::directory_entry& entry)
{
    std::error_code vanished;
    return entry.is_regular_file(vanished);
}

/// True if there is something before the extension.
bool HasExtension(std::string_view fileName, std::string_view extension)
{
    return fileName.size() > extension.size() &&
           EqualIgnoringCase(fileName.substr(fileName.size() - extension.size()), extension);
}

} // namespace

std::vector<fs::directory_entry> EntriesOfFolder(const fs::path& folder)
{
    std::vector<fs::directory_entry> found;
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error))
        found.push_back(*entries);
    return found;
}

std::vector<FolderFile> FilesInFolder(const fs::path& folder, std::string_view extension, DotFiles dotFiles)
{
    std::map<std::pair<std::string, std::string>, FolderFile> sorted; // by the name in lower case, then by the file's
    for (const fs::directory_entry& entry : EntriesOfFolder(folder)) {
        const std::string fileName = entry.path().filename().native();
        const bool isLeftOut = dotFiles == DotFiles::No && fileName.starts_with('.');
        if (isLeftOut || !HasExtension(fileName, extension) || !IsPlain(entry))
            continue;
        const std::string name = fileName.substr(0, fileName.size() - extension.size());
        sorted.try_emplace({LowerCase(name), fileName}, FolderFile{name, entry.path()});
    }
    std::vector<FolderFile> files;
    files.reserve(sorted.size());
    for (auto& [key, file] : sorted)
        files.push_back(std::move(file));
    return files;
}

std::vector<std::string> NamesInFolder(const fs::path& folder, std::string_view extension)
{
    std::vector<std::string> names;
    for (FolderFile& file : FilesInFolder(folder, extension))
        names.push_back(std::move(file.Name));
    return names;
}

} // namespace sprout
