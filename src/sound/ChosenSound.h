// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>

#include "base/Words.h"
#include "service/SoundReader.h"

namespace sprout {

/// The dialog filter for every kind of sound: its name and its patterns.
inline constexpr LaterWords kOtherSoundsFilter = Words::Later(
    "Other sounds|*.wav;*.mp3;*.ogg;*.oga;*.opus;*.flac;*.m4a;*.aac;*.wma;*.aif;*.aiff;*.amr;*.3gp;*.mp4;*.m4v;*.mov;"
    "*.webm;*.mkv;*.avi;*.au;*.caf;*.wv");

/// A sound file that the user chose.
struct ChosenSound {
    std::filesystem::path File;     ///< the chosen file, whose name, folder and messages count
    std::filesystem::path WaveFile; ///< the file that `LoadWaveFile` must read: the chosen one or a temporary one
    bool IsTooLong = false;         ///< refused because it would need to be converted; there is nothing to read then
    std::unique_ptr<ConvertedWave> Temporary; ///< holds the temporary file
};

/// Finds out which file `LoadWaveFile` must read for a chosen file.
///
/// If that reader would accept a file's head, it gets the file as it is, however long it is. Any other sound is
/// converted while the user sees the progress: one without "RIFF" and "WAVE", in a format other than PCM, with
/// channels, a rate or bits that are refused, or with a sound size of 0 or below, as written by recorders that do not
/// know it in time. A file that cannot be converted also goes to that reader, which tells the user what is wrong.
///
/// mostSeconds: limit for a converted sound. Throws `RunTimeError` if the converted sound cannot be written, and
/// `WorkStopped`.
[[nodiscard]] ChosenSound OpenChosenSound(const std::filesystem::path& file, std::int32_t mostSeconds, TooLong tooLong);

} // namespace sprout
