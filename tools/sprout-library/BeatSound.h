// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "base/WaveData.h"
#include "sprout-library/BeatTable.h"
#include "sprout-library/SoundFont.h"

namespace sprout {

// Limits for every beat of the library; the check of a finished library uses the same.
inline constexpr double kLongestBeatOfLibrarySeconds = 3;
inline constexpr double kHighestBeatPeakDb = -6;
inline constexpr double kLowestBeatPeakDb = -12;
inline constexpr double kMostCentsOff = 5;
inline constexpr double kMostLoudnessOffFamilyDb = 3;
inline constexpr double kLatestOnsetSeconds = 0.005;
inline constexpr double kOnsetShare = 0.02; ///< share of the peak at which a sound has begun
inline constexpr double kEndDb = -60;       ///< the last 5 ms stay below this
inline constexpr double kMostOffset = 0.001;

/// Makes the sounds of beats. The sound font is loaded on first use.
class BeatSounds {
public:
    explicit BeatSounds(std::filesystem::path fontFile) : file(std::move(fontFile)) {}

    /// A mono wave at 44,100 Hz, 16 bits: in tune, starts at once, faded out, at its family's loudness as far as the
    /// highest allowed peak permits. Throws `RunTimeError`.
    [[nodiscard]] WaveData Make(const BeatRecipe& recipe, const BeatFamily& family);

private:
    [[nodiscard]] std::vector<double> Raw(const BeatRecipe& recipe, double cents);

    std::filesystem::path file;
    std::unique_ptr<SoundFont> font;
};

} // namespace sprout
