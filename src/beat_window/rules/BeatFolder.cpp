// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/rules/BeatFolder.h"

#include <map>
#include <string_view>
#include <system_error>
#include <utility>

#include "core/Paths.h"
#include "core/Text.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kExtensionLength = 4;

/// By name in lower case, which is also their order.
using FilesByName = std::map<std::string, std::vector<fs::path>>;

struct Listing {
    FilesByName waves;
    FilesByName pictures;
};

std::string WithoutExtension(const std::string& fileName)
{
    return fileName.substr(0, fileName.size() - kExtensionLength);
}

void AddFile(Listing& listing, const fs::path& path)
{
    const std::string name = LowerCase(PathText(path.filename()));
    if (name.size() <= kExtensionLength)
        return;
    if (name.ends_with(".wav"))
        listing.waves[WithoutExtension(name)].push_back(path);
    else if (name.ends_with(".bmp"))
        listing.pictures[WithoutExtension(name)].push_back(path);
}

Listing ReadFolder(const fs::path& folder)
{
    Listing listing;
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        std::error_code vanished;
        if (entries->is_regular_file(vanished))
            AddFile(listing, entries->path());
    }
    return listing;
}

/// A look-up by name takes the file of just that name before those of another case.
const fs::path& FileOf(const std::vector<fs::path>& files, const std::string& fileName)
{
    for (const fs::path& file : files)
        if (file.filename().native() == fileName)
            return file;
    return files.front();
}

} // namespace

BeatFolder ListBeatFolder(const fs::path& folder)
{
    const Listing listing = ReadFolder(folder);
    BeatFolder found;
    for (const auto& [name, waves] : listing.waves) {
        for (const fs::path& wave : waves)
            found.WaveNames.push_back(WithoutExtension(PathText(wave.filename())));
        const auto pictures = listing.pictures.find(name);
        if (pictures != listing.pictures.end())
            found.Pairs.push_back({name, FileOf(waves, name + ".wav"), FileOf(pictures->second, name + ".bmp")});
    }
    return found;
}

} // namespace sprout
