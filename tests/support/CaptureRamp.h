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

/// A sound whose samples identify each frame. The left sample of frame n, counted from 0, rises and starts again; the
/// right one is the number of the lap. Neither is ever 0.
[[nodiscard]] std::string RampBytes(int frames, int firstLap = 1);

/// The contents of two captured files.
struct CapturedRamp {
    std::vector<std::int16_t> left;
    std::vector<std::int16_t> right;

    /// The number of each frame of a ramp that begins with the lap `firstLap`; -1: silence, -2: not from this ramp.
    [[nodiscard]] std::vector<int> Numbers(int firstLap = 1) const;
};

[[nodiscard]] CapturedRamp ReadCaptured(const std::filesystem::path& left, const std::filesystem::path& right);

/// The frames without the silence before and after them.
[[nodiscard]] std::vector<int> Sounded(const std::vector<int>& numbers);

/// Where a frame does not follow the one before: its place, the number before it and its own. Empty if there is no gap.
[[nodiscard]] std::string GapsOf(const std::vector<int>& numbers);

} // namespace sprout
