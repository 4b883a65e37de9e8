// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Picture.h"

namespace sprout {

/// The names of a beat to be added.
struct NewBeatName {
    std::string File;      ///< of the .wav in `UserBeats`
    std::string FirstName; ///< its name if none were taken, in lower case
    std::string Name;      ///< in lower case
};

/// A free name in `UserBeats` for a chosen sound file: its own or the first free one of New1..., New2... A chosen file
/// with another extension gets .wav, without which no beat is found.
[[nodiscard]] NewBeatName NameNewBeat(const std::filesystem::path& soundFile);

/// The picture chosen for a new beat; the default tune picture if the file does not exist. Throws if it cannot be read.
[[nodiscard]] Picture ReadChosenPicture(const std::filesystem::path& pictureFile);

/// Copies a wave unchanged, with its time, into `UserBeats`, and writes the picture beside it. file: the free name of
/// the .wav. If this fails, it throws and neither file is there.
void AddBeatFiles(const std::filesystem::path& waveFile, const Picture& picture, const std::string& file);

/// Renames the .wav, then the .bmp of a beat in `UserBeats`. Throws if a file with the new name already exists, in any
/// letter case, or if the system refuses; files renamed before that stay renamed.
void RenameBeatFiles(std::string_view oldName, std::string_view newName);

/// Deletes the .wav and the .bmp of a beat in `UserBeats`; ignores failures.
void DeleteBeatFiles(std::string_view name);

/// A number as text, with up to 15 digits.
[[nodiscard]] std::string SecondsText(double value);

} // namespace sprout
