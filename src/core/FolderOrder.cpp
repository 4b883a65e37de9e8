// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/FolderOrder.h"

#include <algorithm>
#include <limits>

#include "base/Errors.h"
#include "base/Log.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "core/Paths.h"

namespace sprout {

namespace {

constexpr std::string_view kSortOrder = "SortOrder";

/// A line with any other name would be read as something else, or separate the lines after it from their section.
bool CanBeKey(std::string_view name)
{
    const std::string_view key = Trim(name);
    return !key.empty() && key.front() != '[' && key.front() != ';' && key.find('=') == std::string_view::npos;
}

} // namespace

FolderOrder FolderOrder::Read(const std::filesystem::path& file)
{
    FolderOrder order;
    const std::filesystem::path found = FindFile(file);
    order.path = found.empty() ? file : found;
    order.ini = IniFile::Read(order.path);
    return order;
}

std::int32_t FolderOrder::Place(std::string_view name) const
{
    if (!ini.Has(kSortOrder, name))
        return kNoPlace;
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return RoundHalfEven(std::clamp(NumberPrefix(ini.Value(kSortOrder, name, "")), -most, most));
}

void FolderOrder::SetOrder(std::span<const std::string> names)
{
    std::int32_t place = 0;
    for (const std::string& name : names) {
        ++place;
        if (CanBeKey(name))
            ini.SetValue(kSortOrder, name, std::to_string(place));
    }
}

void FolderOrder::Write() const
{
    try {
        ini.Write(path);
    } catch (const RunTimeError& error) {
        LogFailure("Writing a folder's order", error);
        return; // the entries are then in the order of their files
    }
}

} // namespace sprout
