// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Settings.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <optional>
#include <system_error>
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

/// A settings file as last read. Each use checks whether it has changed.
class KeptFile {
public:
    const IniFile& Read(const std::filesystem::path& path)
    {
        const std::filesystem::path found = FindFile(path);
        const std::optional<FileFacts> now = found.empty() ? std::nullopt : TheServices().files->FactsOf(found);
        if (!now || now != facts || found != file) {
            ini = IniFile::Read(found);
            facts = now;
            file = found;
        }
        return ini;
    }

    void Forget() { facts.reset(); }

private:
    std::filesystem::path file;
    std::optional<FileFacts> facts; // taken before the file was read
    IniFile ini;
};

/// The settings files, the one that counts most first.
class SettingsRead {
public:
    std::string Value(std::string_view section, std::string_view key, std::string_view fallback)
    {
        const std::lock_guard lock(mutex);
        const IniFile& forAll = machine.Read(Shared().MachineSettingsFile);
        if (forAll.Has(kLockedSection, key))
            return forAll.Value(kLockedSection, key, fallback);
        const IniFile& own = user.Read(Shared().SettingsFile);
        if (own.Has(section, key))
            return own.Value(section, key, fallback);
        if (forAll.Has(section, key))
            return forAll.Value(section, key, fallback);
        return program.Read(Shared().ProgramSettingsFile).Value(section, key, fallback);
    }

    bool IsLocked(std::string_view key)
    {
        const std::lock_guard lock(mutex);
        return machine.Read(Shared().MachineSettingsFile).Has(kLockedSection, key);
    }

    void Forget()
    {
        const std::lock_guard lock(mutex);
        user.Forget();
        program.Forget();
    }

private:
    std::mutex mutex;
    KeptFile machine;
    KeptFile user;
    KeptFile program;
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

/// A new user has no folder for settings yet. If it cannot be created, nor can the file.
void MakeFolderOf(const std::filesystem::path& file)
{
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
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
    std::vector<IniValue> allowed;
    std::copy_if(values.begin(), values.end(), std::back_inserter(allowed),
                 [](const IniValue& value) { return !Trim(value.key).empty() && !TheSettings().IsLocked(value.key); });
    const std::filesystem::path& file = Shared().SettingsFile;
    if (allowed.empty() || file.empty())
        return;
    MakeFolderOf(file);
    PutIniValues(NamedSection(section), allowed, file);
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
