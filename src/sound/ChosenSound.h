// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>

#include "service/SoundReader.h"

namespace sprout {

/// The filter of a dialog that offers every kind of sound: its name and its patterns.
inline constexpr std::string_view kOtherSoundsFilter =
    "Other sounds|*.wav;*.mp3;*.ogg;*.oga;*.opus;*.flac;*.m4a;*.aac;*.wma;*.aif;*.aiff;*.amr;*.3gp;*.mp4;*.m4v;*.mov;"
    "*.webm;*.mkv;*.avi;*.au;*.caf;*.wv";

/// A sound file that the user chose.
struct ChosenSound {
    std::filesystem::path File;     ///< the chosen one, whose name, folder and messages count
    std::filesystem::path WaveFile; ///< what `LoadWaveFile` is to read: the chosen one, or a temporary one
    bool IsTooLong = false;         ///< it would have to be converted and was refused; there is nothing to read then
    std::unique_ptr<ConvertedWave> Temporary; ///< holds the temporary file
};

/// Finds out what `LoadWaveFile` is to read for a chosen file.
///
/// A file whose head that reader would take goes to it as it is, however long it is. Any other sound is converted, of
/// which the user sees the progress: no "RIFF" and "WAVE", a format other than PCM, channels, a rate or bits that are
/// refused, or a size of the sound of 0 or below, as recorders write that do not know it in time. What cannot be
/// converted goes to that reader too, which tells the user what is wrong with it.
///
/// mostSeconds: of a sound that is converted. Throws `RunTimeError` where the converted sound cannot be written, and
/// `WorkStopped`.
[[nodiscard]] ChosenSound OpenChosenSound(const std::filesystem::path& file, std::int32_t mostSeconds, TooLong tooLong);

} // namespace sprout
