// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/rules/BeatIndex.h"

#include <algorithm>

#include "core/Numbers.h"
#include "core/Shared.h"
#include "core/Text.h"

namespace sprout {

namespace {

constexpr std::string_view kGeneralSection = "General";
constexpr std::string_view kProtectedKey = "Protected";
constexpr std::string_view kProtectedNos = "ProtectedNos";

std::string ProtectedFileKey(std::int32_t number)
{
    return "File" + std::to_string(number);
}

/// What stands before the first equals sign is the key, a bracket begins a section and a semicolon a remark.
bool CanBeIniKey(std::string_view name)
{
    const std::string_view trimmed = Trim(name);
    return !trimmed.empty() && trimmed.front() != '[' && trimmed.front() != ';' &&
           trimmed.find('=') == std::string_view::npos;
}

} // namespace

BeatIndex BeatIndex::Read()
{
    BeatIndex index;
    index.order = TuneIndex::Read(Shared().UserBeats / "TqBeats.ini");
    return index;
}

bool BeatIndex::WriteProtectedList(std::span<const std::string> names)
{
    IniFile& ini = order.Ini();
    if (NumberPrefix(ini.Value(kGeneralSection, kProtectedKey, "0")) == 1)
        return false;
    ini.SetValue(kGeneralSection, kProtectedNos, std::to_string(names.size()));
    ini.SetValue(kGeneralSection, kProtectedKey, "1");
    std::int32_t number = 0;
    for (const std::string& name : names)
        ini.SetValue(kProtectedKey, ProtectedFileKey(++number), name);
    return true;
}

std::unordered_set<std::string> BeatIndex::ReadProtectedList() const
{
    const IniFile& ini = order.Ini();
    const double told = NumberPrefix(ini.Value(kGeneralSection, kProtectedNos, "0"));
    const std::int32_t count = RoundHalfEven(std::clamp<double>(told, 0, kMostProtected));
    std::unordered_set<std::string> names;
    for (std::int32_t number = 1; number <= count; ++number)
        names.insert(NameKey(ini.Value(kProtectedKey, ProtectedFileKey(number), "")));
    return names;
}

void BeatIndex::SetOrder(std::span<const std::string> names)
{
    std::int32_t place = 0;
    for (const std::string& name : names) {
        ++place;
        if (CanBeIniKey(name))
            order.Ini().SetValue("SortOrder", name, std::to_string(place));
    }
}

} // namespace sprout
