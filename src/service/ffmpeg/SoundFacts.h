// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace sprout {

/// The metadata of a WMA file. Texts are UTF-8, and blank if the file has none.
struct SoundFacts {
    std::string Container;     ///< FFmpeg's short name of the file format
    std::string Codec;         ///< and of the sound's codec
    std::int64_t BitRate = 0;  ///< bits per second of the sound
    std::int32_t Rate = 0;     ///< frames per second
    std::int32_t Channels = 0; ///< 1 or more
    double Seconds = 0;        ///< to the end of the last packet

    std::string Title;
    std::string Author;
    std::string Copyright;
    std::string Year;
    std::string Comment;
};

/// Reads the header of a WMA file, at most its first megabyte. Throws `RunTimeError` with a plain sentence if the file
/// is of another kind, damaged or cut short, or if FFmpeg's libraries are missing.
[[nodiscard]] SoundFacts ReadSoundFacts(const std::filesystem::path& path);

} // namespace sprout
