// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace sprout {

// Public engines that do what the stretch service does; measured beside it, used nowhere else.

/// Rubber Band's finer engine, offline: it stretches by pitch x duration, libsoxr changes the pitch. Blocks of 1024,
/// drained after each: it loses sound otherwise.
[[nodiscard]] std::vector<std::int16_t> RubberBandStretch(std::span<const std::int16_t> samples, double pitch,
                                                          double duration);

/// SoundTouch with its default settings.
[[nodiscard]] std::vector<std::int16_t> SoundTouchStretch(std::span<const std::int16_t> samples, double pitch,
                                                          double duration);

} // namespace sprout
