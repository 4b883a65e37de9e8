// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/TuneIndex.h"

#include <algorithm>
#include <limits>

#include "core/Errors.h"
#include "core/Numbers.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/Text.h"

namespace sprout {

namespace {

constexpr std::string_view kSortOrder = "SortOrder";

/// A line of any other name would be read as something else, or cut the lines behind it off from their section.
bool CanBeKey(std::string_view name)
{
    const std::string_view key = Trim(name);
    return !key.empty() && key.front() != '[' && key.front() != ';' && key.find('=') == std::string_view::npos;
}

} // namespace

TuneIndex TuneIndex::Read(const std::filesystem::path& file)
{
    TuneIndex index;
    const std::filesystem::path found = FindFile(file);
    index.path = found.empty() ? file : found;
    index.ini = IniFile::Read(index.path);
    return index;
}

std::int32_t TuneIndex::Place(std::string_view name) const
{
    if (!ini.Has(kSortOrder, name))
        return kNoPlace;
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return RoundHalfEven(std::clamp(NumberPrefix(ini.Value(kSortOrder, name, "")), -most, most));
}

void TuneIndex::SetOrder(std::span<const std::string> names)
{
    std::int32_t place = 0;
    for (const std::string& name : names) {
        ++place;
        if (CanBeKey(name))
            ini.SetValue(kSortOrder, name, std::to_string(place));
    }
}

void TuneIndex::Write() const
{
    try {
        ini.Write(path);
    } catch (const RunTimeError&) {
        return; // the tunes then stand in the order of their files
    }
}

std::filesystem::path TuneIndexFile()
{
    return Shared().UserTunes / "TqTunes.ini";
}

} // namespace sprout
