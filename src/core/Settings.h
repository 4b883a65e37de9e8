// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "core/IniFile.h"
#include "core/Shared.h"

namespace sprout {

/// The settings of `kGeneralSection` with the folders in which the user last chose a sound and a picture.
inline constexpr std::string_view kSoundFolderSetting = "WavFileSelPath";
inline constexpr std::string_view kPictureFolderSetting = "PictureSelectPath";

/// Longest value that `GetSetting` returns, in characters.
inline constexpr std::size_t kLongestSetting = 99;

/// The section of `MachineSettingsFile` with values that no user and no window can change. A key there stands for the
/// setting of its name in any section.
inline constexpr std::string_view kLockedSection = "Locked";

/// A value from the settings files, cut to 99 characters: from the locked section of `MachineSettingsFile`, otherwise
/// from `SettingsFile`, from the rest of `MachineSettingsFile` or from `ProgramSettingsFile`. A blank section becomes
/// "General"; a blank key gives `fallback` unless a file has a key "END".
[[nodiscard]] std::string GetSetting(std::string_view section, std::string_view key, std::string_view fallback);

/// True if a setting of "General" is the number 1: the switches that a user sets by hand.
[[nodiscard]] bool IsSetToOne(std::string_view key);

/// Writes values to `SettingsFile` in one step and creates its folder if missing. A blank section becomes "General"; a
/// blank or a locked key is ignored. Ignores failures.
void PutSettings(std::string_view section, std::initializer_list<IniValue> values);

/// Writes one value, likewise.
void PutSetting(std::string_view section, std::string_view key, std::string_view value);

/// The colours of the wave view: each setting's number, or the built-in colour if it is -1.
[[nodiscard]] WaveViewColours ReadWaveColours();

} // namespace sprout
