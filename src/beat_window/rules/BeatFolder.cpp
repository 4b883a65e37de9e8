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

constexpr std::size_t kEndingLength = 4;

/// By name in lower case, which is also their order.
using FilesByName = std::map<std::string, std::vector<fs::path>>;

struct BeatListing {
    FilesByName waves;
    FilesByName pictures;
};

std::string WithoutEnding(const std::string& fileName)
{
    return fileName.substr(0, fileName.size() - kEndingLength);
}

void AddListedFile(BeatListing& listing, const fs::path& path)
{
    const std::string name = LowerCase(PathText(path.filename()));
    if (name.size() <= kEndingLength)
        return;
    if (name.ends_with(".wav"))
        listing.waves[WithoutEnding(name)].push_back(path);
    else if (name.ends_with(".bmp"))
        listing.pictures[WithoutEnding(name)].push_back(path);
}

BeatListing ReadListing(const fs::path& folder)
{
    BeatListing listing;
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        std::error_code vanished;
        if (entries->is_regular_file(vanished))
            AddListedFile(listing, entries->path());
    }
    return listing;
}

/// A look-up by name takes the file of just that name before those of another case.
const fs::path& FileOfName(const std::vector<fs::path>& files, const std::string& fileName)
{
    for (const fs::path& file : files)
        if (file.filename().native() == fileName)
            return file;
    return files.front();
}

} // namespace

BeatFolder ListBeatFolder(const fs::path& folder)
{
    const BeatListing listing = ReadListing(folder);
    BeatFolder found;
    for (const auto& [name, waves] : listing.waves) {
        for (const fs::path& wave : waves)
            found.WaveNames.push_back(WithoutEnding(PathText(wave.filename())));
        const auto pictures = listing.pictures.find(name);
        if (pictures != listing.pictures.end())
            found.Pairs.push_back(
                {name, FileOfName(waves, name + ".wav"), FileOfName(pictures->second, name + ".bmp")});
    }
    return found;
}

} // namespace sprout
