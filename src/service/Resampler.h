// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace sprout {

/// Plays a sound `pitch` times as fast: outCount samples, cut, or padded with zeros where the sound has ended.
///
/// pitch: 0.5 to 2. The result begins with the sound's first sample; what would lie above half the rate is left out.
/// Throws std::bad_alloc where the library has no memory.
[[nodiscard]] std::vector<float> Resample(std::span<const float> sound, double pitch, std::int64_t outCount);

} // namespace sprout
