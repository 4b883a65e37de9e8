// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace sprout {

// Public engines that do what the stretch service does; they are only used here, for comparison.

/// Rubber Band's finer engine, offline: it stretches by pitch x duration, and libsoxr changes the pitch. It works in
/// blocks of 1024 and is drained after each; otherwise it loses sound.
[[nodiscard]] std::vector<std::int16_t> RubberBandStretch(std::span<const std::int16_t> samples, double pitch,
                                                          double duration);

/// SoundTouch with its default settings.
[[nodiscard]] std::vector<std::int16_t> SoundTouchStretch(std::span<const std::int16_t> samples, double pitch,
                                                          double duration);

} // namespace sprout
