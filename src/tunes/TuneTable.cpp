// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TuneTable.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/FolderFiles.h"
#include "base/Text.h"
#include "core/Busy.h"
#include "core/ClassFolder.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "tunes/TunOpnSavClass.h"

namespace sprout {

namespace fs = std::filesystem;

fs::path TuneFile(std::string_view name)
{
    return NamedFile(Shared().UserTunes, name, kTuneExtension);
}

fs::path TuneFileToRead(std::string_view name)
{
    const fs::path found = FindNamedFile(TuneFolders(), name, kTuneExtension);
    return IsOfClass(found) ? found : TuneFile(name);
}

fs::path TuneIndexFile()
{
    return Shared().UserTunes / "TqTunes.ini";
}

std::vector<std::string> InTuneOrder(std::vector<std::string> names, const FolderOrder& index)
{
    using Keyed = std::pair<decltype(index.Place({})), std::string>;
    std::vector<Keyed> keyed; // each name is looked up once
    keyed.reserve(names.size());
    for (std::string& name : names) {
        const auto place = index.Place(name);
        keyed.emplace_back(place, std::move(name));
    }
    std::stable_sort(keyed.begin(), keyed.end(), [](const Keyed& a, const Keyed& b) { return a.first < b.first; });
    std::transform(keyed.begin(), keyed.end(), names.begin(), [](Keyed& entry) { return std::move(entry.second); });
    return names;
}

void ReadTuneTable()
{
    SharedState& shared = Shared();
    const WorkingSign sign;
    std::vector<std::string> found;
    std::unordered_map<std::string, fs::path> classFiles;
    for (FolderFile& file : FilesInFolders(TuneFolders(), kTuneExtension)) {
        if (IsOfClass(file.Path))
            classFiles[file.Name] = std::move(file.Path);
        found.push_back(std::move(file.Name));
    }
    const std::vector<std::string> names = InTuneOrder(std::move(found), FolderOrder::Read(TuneIndexFile()));
    shared.TuneTable.assign(names.size() + 1, Tune());
    shared.TuneTableCount = static_cast<std::int32_t>(names.size());
    TunOpnSavClass files;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto ofClass = classFiles.find(names[i]);
        files.Load_Tune(ofClass != classFiles.end() ? ofClass->second : TuneFile(names[i]), TuneLoad::List);
        shared.TuneTable[i + 1] = shared.TuneClipboard;
        TheServices().screen->ShowProgress(i + 1, names.size());
    }
}

void SaveTuneOrder()
{
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= Shared().TuneTableCount; ++i)
        names.push_back(At(Shared().TuneTable, i).Name);
    FolderOrder index = FolderOrder::Read(TuneIndexFile());
    index.SetOrder(names);
    index.Write();
}

bool IsInTuneTable(std::int32_t index)
{
    return index >= 1 && index <= Shared().TuneTableCount;
}

std::int32_t FindInTuneTable(std::string_view name)
{
    // An entry that could not be read has an empty name, which must not match.
    for (std::int32_t i = 1; i <= Shared().TuneTableCount && !name.empty(); ++i)
        if (EqualIgnoringCase(At(Shared().TuneTable, i).Name, name))
            return i;
    return 0;
}

} // namespace sprout
