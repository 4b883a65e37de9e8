// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ClassFolder.h"

#include <algorithm>
#include <string>
#include <unordered_set>

#include "base/FilePaths.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

OwnAndClass With(const fs::path& own, const char* name)
{
    const fs::path& root = Shared().ClassRoot;
    return {own, root.empty() ? fs::path() : AsFolder(root / name)};
}

} // namespace

void FindClassFolder()
{
    const fs::path named(Trim(GetSetting(kGeneralSection, "ClassFolder", "")));
    Shared().ClassRoot = named.is_absolute() ? AsFolder(named) : fs::path();
}

OwnAndClass BeatFolders()
{
    return With(Shared().UserBeats, "Beats");
}

OwnAndClass TuneFolders()
{
    return With(Shared().UserTunes, "Tunes");
}

OwnAndClass SongFolders()
{
    return With(Shared().UserSongs, "Songs");
}

fs::path FindNamedFile(const OwnAndClass& folders, std::string_view name, std::string_view extension)
{
    fs::path found = FindFile(NamedFile(folders.Own, name, extension));
    if (found.empty() && !folders.Class.empty())
        found = FindFile(NamedFile(folders.Class, name, extension));
    return found;
}

std::vector<FolderFile> FilesInFolders(const OwnAndClass& folders, std::string_view extension)
{
    std::vector<FolderFile> files = FilesInFolder(folders.Own, extension);
    if (folders.Class.empty())
        return files;
    std::unordered_set<std::string> own;
    for (const FolderFile& file : files)
        own.insert(NameKey(file.Name));
    for (FolderFile& file : FilesInFolder(folders.Class, extension))
        if (!own.contains(NameKey(file.Name)))
            files.push_back(std::move(file));
    std::stable_sort(files.begin(), files.end(),
                     [](const FolderFile& a, const FolderFile& b) { return LowerCase(a.Name) < LowerCase(b.Name); });
    return files;
}

} // namespace sprout
