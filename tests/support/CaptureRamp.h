// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "support/TestFolder.h"

namespace sprout {

inline constexpr int kRampLap = 30000;

/// A sound of which each frame is known by its samples. The left sample of frame n, counted from 0, runs up and begins
/// again; the right one is the number of the lap. Neither is ever 0.
[[nodiscard]] std::string RampBytes(int frames, int firstLap = 1);

/// What was captured in two files.
struct CapturedRamp {
    std::vector<std::int16_t> left;
    std::vector<std::int16_t> right;

    /// The number of each frame of a ramp that begins with the lap `firstLap`; -1: silence, -2: a foreign one.
    [[nodiscard]] std::vector<int> Numbers(int firstLap = 1) const;
};

[[nodiscard]] CapturedRamp ReadCaptured(const std::filesystem::path& left, const std::filesystem::path& right);

/// The frames without the silence ahead and behind.
[[nodiscard]] std::vector<int> Sounded(const std::vector<int>& numbers);

/// Whether each frame follows the one before.
[[nodiscard]] bool IsGapless(const std::vector<int>& numbers);

} // namespace sprout
