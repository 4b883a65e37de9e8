// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Settings.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <optional>
#include <vector>

#include "base/Errors.h"
#include "base/Log.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "core/Paths.h"
#include "service/Files.h"
#include "service/Services.h"

namespace sprout {

namespace {

/// The settings file as last read. Each use checks whether the file has changed.
class SettingsRead {
public:
    std::string Value(std::string_view section, std::string_view key, std::string_view fallback)
    {
        const std::lock_guard lock(mutex);
        const std::filesystem::path found = FindFile(Shared().SettingsFile);
        const std::optional<FileFacts> now = found.empty() ? std::nullopt : TheServices().files->FactsOf(found);
        if (!now || now != facts || found != file) {
            ini = IniFile::Read(found);
            facts = now;
            file = found;
        }
        return ini.Value(section, key, fallback);
    }

    void Forget()
    {
        const std::lock_guard lock(mutex);
        facts.reset();
    }

private:
    std::mutex mutex;
    std::filesystem::path file;
    std::optional<FileFacts> facts; // taken before the file was read
    IniFile ini;
};

SettingsRead& TheSettings()
{
    static SettingsRead settings;
    return settings;
}

std::string_view NamedSection(std::string_view section)
{
    return Trim(section).empty() ? kGeneralSection : section;
}

void ReadColour(std::string_view key, std::int32_t& colour)
{
    constexpr std::int32_t notSet = -1;
    try {
        const std::int32_t value = RoundHalfEven(NumberPrefix(GetSetting("Color", key, "-1")));
        if (value != notSet)
            colour = value;
    } catch (const RunTimeError& error) {
        LogFailure("Reading a colour", error);
        return; // impossible colour number: the built-in one stays
    }
}

} // namespace

std::string GetSetting(std::string_view section, std::string_view key, std::string_view fallback)
{
    const std::string_view named = Trim(key).empty() ? "END" : key;
    const std::string value = TheSettings().Value(NamedSection(section), named, fallback);
    return std::string(FirstCharacters(value, kLongestSetting));
}

bool IsSetToOne(std::string_view key)
{
    return NumberPrefix(GetSetting(kGeneralSection, key, "0")) == 1;
}

void PutSettings(std::string_view section, std::initializer_list<IniValue> values)
{
    // A blank key would delete the section; a setting without a name is ignored.
    std::vector<IniValue> named;
    std::copy_if(values.begin(), values.end(), std::back_inserter(named),
                 [](const IniValue& value) { return !Trim(value.key).empty(); });
    if (named.empty())
        return;
    PutIniValues(NamedSection(section), named, Shared().SettingsFile);
    TheSettings().Forget();
}

void PutSetting(std::string_view section, std::string_view key, std::string_view value)
{
    PutSettings(section, {{key, std::string(value)}});
}

WaveViewColours ReadWaveColours()
{
    WaveViewColours colours;
    ReadColour("WaveFormNormalColorL", colours.WaveFormNormalColorL);
    ReadColour("WaveFormNormalColorR", colours.WaveFormNormalColorR);
    ReadColour("CenterLineColor", colours.CenterLineColor);
    ReadColour("NormalBackColor", colours.NormalBackColor);
    ReadColour("SelectBackColor", colours.SelectBackColor);
    ReadColour("LineCursorColor", colours.LineCursorColor);
    ReadColour("PlayPosIndiColor", colours.PlayPosIndiColor);
    return colours;
}

} // namespace sprout
