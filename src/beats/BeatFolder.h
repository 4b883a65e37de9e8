// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace sprout {

/// A beat of a folder: a .wav and a .bmp of one name.
struct BeatPair {
    std::string Name; ///< in lower case
    std::filesystem::path Wave;
    std::filesystem::path Picture;
};

/// What a folder holds of beats, alphabetical without regard to case.
struct BeatFolder {
    std::vector<std::string> WaveNames; ///< base names of all .wav, with or without a .bmp
    std::vector<BeatPair> Pairs;        ///< one for names that differ in case only, as a look-up by name finds it
};

/// Reads a folder. One that cannot be read is an empty one.
[[nodiscard]] BeatFolder ListBeatFolder(const std::filesystem::path& folder);

} // namespace sprout
