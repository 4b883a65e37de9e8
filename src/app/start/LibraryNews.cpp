// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start/LibraryNews.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

#include "app/start/UserFolders.h"
#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/FolderFiles.h"
#include "beats/BeatFiles.h"
#include "core/IniFile.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Files.h"
#include "service/Services.h"

namespace sprout {

namespace fs = std::filesystem;

/// A folder of the library. What is in it consists of a file with this extension, and perhaps of a picture.
struct LibraryFolder {
    UserFolder Folder;
    std::string_view Extension;
    LaterWords New;
    bool ShowsNames = true;

    [[nodiscard]] fs::path Source() const { return Shared().*Folder.Installed; }
    [[nodiscard]] fs::path Target() const { return Shared().UserRoot / Folder.Name; }
    [[nodiscard]] bool TakesFiles() const;
    [[nodiscard]] bool HasUser(const std::string& name) const;
    [[nodiscard]] Words LineOf(const std::vector<FolderFile>& things) const;
};

namespace {

constexpr std::string_view kLibrarySection = "Library";
constexpr std::size_t kMostNames = 5;

constexpr std::array kFolders{
    LibraryFolder{kTunesFolder, kTuneExtension, Words::Later("New tunes: %1")},
    LibraryFolder{kSongsFolder, kSongExtension, Words::Later("New songs: %1")},
    LibraryFolder{kBeatsFolder, kWaveExtension, Words::Later("New beats: %1")},
    // Children never see their names.
    LibraryFolder{kStarsFolder, kStarExtension, Words::Later("New surprises for random tunes"), false},
};

fs::path ListFile()
{
    return Shared().UserRoot / ".SproutLibrary";
}

/// Names are told apart by their letters, not by their case, as everywhere; an equals sign would end the key.
std::string KeyOf(const LibraryFolder& folder, std::string name)
{
    std::replace(name.begin(), name.end(), '=', '_');
    return std::string(folder.Folder.Name) + "/" + name;
}

bool MayBeNoted()
{
    const Files& files = *TheServices().files;
    return files.MayChangeFolder(Shared().UserRoot) && files.MayBeReplaced(ListFile());
}

/// Copies with each file its picture, if it has one. Throws `WorkStopped`.
void CopyToUser(const LibraryFolder& folder, const std::vector<FolderFile>& things)
{
    std::vector<fs::path> names;
    for (const FolderFile& thing : things) {
        names.push_back(thing.Path.filename());
        const fs::path picture = FindFile(folder.Source() / (thing.Name + std::string(kPictureExtension)));
        if (!picture.empty())
            names.push_back(picture.filename());
    }
    if (names.empty())
        return;
    const Words failure = CopyFiles(folder.Source(), folder.Target(), names);
    if (!failure.IsBlank())
        TellFailedCopy(folder.Source(), failure);
}

} // namespace

/// False if the installed folder is read in place of the user's.
bool LibraryFolder::TakesFiles() const
{
    std::error_code error;
    return Shared().*Folder.User == AsFolder(Target()) && fs::is_directory(Target(), error) &&
           TheServices().files->MayChangeFolder(Target());
}

bool LibraryFolder::HasUser(const std::string& name) const
{
    return FileExists(Target() / (name + std::string(Extension))) ||
           FileExists(Target() / (name + std::string(kPictureExtension)));
}

Words LibraryFolder::LineOf(const std::vector<FolderFile>& things) const
{
    if (!ShowsNames)
        return New;
    std::vector<Words> names;
    for (const FolderFile& thing : things) {
        if (names.size() == kMostNames) {
            names.push_back(Words::Text("and %1 more", things.size() - kMostNames));
            break;
        }
        names.push_back(Words::AsIs(Extension == kWaveExtension ? WithoutFamily(thing.Name) : thing.Name));
    }
    return New.With(Words::Joined(std::move(names), ", "));
}

LibraryNews LibraryNews::Find()
{
    LibraryNews news;
    if (IsSetToOne("SkipFirstCopy") || !MayBeNoted())
        return news;
    const bool isFirstLook = !FileExists(ListFile());
    const IniFile list = IniFile::Read(ListFile());
    std::vector<Thing> seen;
    for (const LibraryFolder& folder : kFolders) {
        for (FolderFile& file : FilesInFolder(folder.Source(), folder.Extension)) {
            if (list.Has(kLibrarySection, KeyOf(folder, file.Name)))
                continue;
            if (isFirstLook || folder.HasUser(file.Name))
                seen.push_back({&folder, std::move(file)});
            else if (folder.TakesFiles())
                news.things.push_back({&folder, std::move(file)});
        }
    }
    Note(seen);
    return news;
}

void LibraryNews::Note(const std::vector<Thing>& seen)
{
    if (seen.empty())
        return;
    std::vector<std::string> keys;
    std::transform(seen.begin(), seen.end(), std::back_inserter(keys),
                   [](const Thing& thing) { return KeyOf(*thing.Folder, thing.File.Name); });
    std::vector<IniValue> values;
    std::transform(keys.begin(), keys.end(), std::back_inserter(values), [](const std::string& key) {
        return IniValue{key, "1"};
    });
    PutIniValues(kLibrarySection, values, ListFile());
}

std::vector<FolderFile> LibraryNews::NewIn(const LibraryFolder& folder) const
{
    std::vector<FolderFile> found;
    for (const Thing& thing : things)
        if (thing.Folder == &folder)
            found.push_back(thing.File);
    return found;
}

Words LibraryNews::Names() const
{
    std::vector<Words> lines;
    for (const LibraryFolder& folder : kFolders)
        if (const std::vector<FolderFile> found = NewIn(folder); !found.empty())
            lines.push_back(folder.LineOf(found));
    return Words::Joined(std::move(lines), "\n");
}

void LibraryNews::Add() const
{
    try {
        for (const LibraryFolder& folder : kFolders)
            CopyToUser(folder, NewIn(folder));
    } catch (const WorkStopped&) {
        // What was not copied is offered again.
    }
    std::vector<Thing> arrived;
    std::copy_if(things.begin(), things.end(), std::back_inserter(arrived),
                 [](const Thing& thing) { return thing.Folder->HasUser(thing.File.Name); });
    Note(arrived);
}

void LibraryNews::Decline() const
{
    Note(things);
}

} // namespace sprout
