// SPDX-License-Identifier: GPL-3.0-or-later
#include "beats/BeatIndex.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "core/Shared.h"

namespace sprout {

namespace {

constexpr std::string_view kProtectedKey = "Protected";
constexpr std::string_view kProtectedNos = "ProtectedNos";

std::string ProtectedFileKey(std::int32_t number)
{
    return "File" + std::to_string(number);
}

} // namespace

BeatIndex BeatIndex::Read()
{
    BeatIndex index;
    index.order = FolderOrder::Read(Shared().UserBeats / "TqBeats.ini");
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

} // namespace sprout
