// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatFolder.h"

#include <algorithm>
#include <map>
#include <unordered_set>
#include <utility>

#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/FolderFiles.h"
#include "base/Text.h"
#include "core/ClassFolder.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

/// The files that a look-up by name finds, by their lower-case names: an exact match comes before names in other case.
std::map<std::string, fs::path> FilesByName(const std::vector<FolderFile>& files)
{
    std::map<std::string, fs::path> byName;
    for (const FolderFile& file : files) {
        const std::string fileName = PathText(file.Path.filename());
        const auto [found, isFirst] = byName.try_emplace(LowerCase(file.Name), file.Path);
        if (fileName == LowerCase(fileName))
            found->second = file.Path;
    }
    return byName;
}

} // namespace

BeatFolder ListBeatFolder(const fs::path& folder)
{
    const std::vector<FolderFile> waves = FilesInFolder(folder, kWaveExtension, DotFiles::Yes);
    const std::map<std::string, fs::path> pictures =
        FilesByName(FilesInFolder(folder, kPictureExtension, DotFiles::Yes));
    BeatFolder found;
    for (const FolderFile& wave : waves)
        found.WaveNames.push_back(wave.Name);
    for (const auto& [name, wave] : FilesByName(waves))
        if (const auto picture = pictures.find(name); picture != pictures.end())
            found.Pairs.push_back({name, wave, picture->second});
    return found;
}

BeatFolder ListOwnAndClassBeats()
{
    const OwnAndClass folders = BeatFolders();
    BeatFolder found = ListBeatFolder(folders.Own);
    if (folders.Class.empty())
        return found;
    std::unordered_set<std::string> own;
    for (const std::string& name : found.WaveNames)
        own.insert(LowerCase(name));
    for (BeatPair& pair : ListBeatFolder(folders.Class).Pairs)
        if (!own.contains(pair.Name))
            found.Pairs.push_back(std::move(pair));
    std::stable_sort(found.Pairs.begin(), found.Pairs.end(),
                     [](const BeatPair& a, const BeatPair& b) { return a.Name < b.Name; });
    return found;
}

} // namespace sprout
