// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace sprout {

/// A beat in a folder: a .wav and a .bmp with the same name.
struct BeatPair {
    std::string Name; ///< in lower case
    std::filesystem::path Wave;
    std::filesystem::path Picture;
};

/// The beats in a folder, in alphabetical order, ignoring case.
struct BeatFolder {
    std::vector<std::string> WaveNames; ///< base names of all .wav files, with or without a .bmp
    std::vector<BeatPair> Pairs;        ///< one per name in any case, as a look-up by name finds it
};

/// Reads a folder. A folder that cannot be read counts as empty.
[[nodiscard]] BeatFolder ListBeatFolder(const std::filesystem::path& folder);

/// The beats of `BeatFolders`: those in `UserBeats`, and the pairs of the class that no own .wav hides. WaveNames: only
/// those in `UserBeats`.
[[nodiscard]] BeatFolder ListOwnAndClassBeats();

} // namespace sprout
