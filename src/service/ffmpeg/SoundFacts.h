// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace sprout {

/// What a WMA file tells of itself. Texts are UTF-8, and blank where the file has none.
struct SoundFacts {
    std::string Container;     ///< FFmpeg's short name of the file's kind
    std::string Codec;         ///< and of the sound's
    std::int64_t BitRate = 0;  ///< bits a second of the sound
    std::int32_t Rate = 0;     ///< frames a second
    std::int32_t Channels = 0; ///< 1 or more
    double Seconds = 0;        ///< to the end of the last packet

    std::string Title;
    std::string Author;
    std::string Copyright;
    std::string Year;
    std::string Comment;
};

/// Reads the head of a WMA file, at most its first megabyte. Throws `RunTimeError` with a plain sentence for any other
/// file, one that is damaged or cut short, and where FFmpeg's libraries are missing.
[[nodiscard]] SoundFacts ReadSoundFacts(const std::filesystem::path& path);

} // namespace sprout
