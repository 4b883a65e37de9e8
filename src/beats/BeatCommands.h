// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Picture.h"

namespace sprout {

/// The names of a beat that is added.
struct NewBeatName {
    std::string File;      ///< of the .wav in `UserBeats`
    std::string FirstName; ///< what it would be called if no beat were called so yet, in lower case
    std::string Name;      ///< in lower case
};

/// A free name in `UserBeats` for a chosen sound file: its own, else the first free one of New1..., New2... A chosen
/// file that is called otherwise than .wav gets that ending, without which no beat is found.
[[nodiscard]] NewBeatName NameNewBeat(const std::filesystem::path& soundFile);

/// The picture chosen for a new beat; the default tune picture where there is no such file. Throws where it cannot be
/// read.
[[nodiscard]] Picture ReadChosenPicture(const std::filesystem::path& pictureFile);

/// Copies a wave as it is, with its time, into `UserBeats`, and writes the picture beside it. file: the free name of
/// the .wav. After a failure, which is thrown, neither is there.
void AddBeatFiles(const std::filesystem::path& waveFile, const Picture& picture, const std::string& file);

/// Renames the .wav, then the .bmp of a beat in `UserBeats`. Throws where a file of the new name is there already, in
/// whatever letter case, or the machine refuses; what was renamed before that stays so.
void RenameBeatFiles(std::string_view oldName, std::string_view newName);

/// Deletes the .wav and the .bmp of a beat in `UserBeats`; a failure is silent.
void DeleteBeatFiles(std::string_view name);

/// A number as text, with up to 15 digits.
[[nodiscard]] std::string SecondsText(double value);

} // namespace sprout
