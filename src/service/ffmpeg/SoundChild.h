// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>

#include "service/SoundReader.h"

namespace sprout {

/// Reads sounds in a child process with its own limits, which runs `sprout-read-sound`: whatever a damaged file does
/// there, the program continues.
class SoundChild : public SoundReader {
public:
    /// Returns a path for a temporary WAV file at which nothing exists.
    using NewFile = std::function<std::filesystem::path()>;

    /// program: the path of `sprout-read-sound`. longest: the child is ended after this time.
    SoundChild(std::filesystem::path program, NewFile newFile,
               std::chrono::milliseconds longest = std::chrono::seconds(20));

    [[nodiscard]] Converted Convert(const std::filesystem::path& sound, std::int32_t mostSeconds, TooLong tooLong,
                                    const Progress& progress) override;

private:
    std::filesystem::path program;
    NewFile newFile;
    std::chrono::milliseconds longest;
};

} // namespace sprout
