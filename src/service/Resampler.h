// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace sprout {

/// Plays a sound `pitch` times as fast: outCount samples, cut, or padded with zeros after the end of the sound.
///
/// pitch: 0.5 to 2. The result begins with the sound's first sample; frequencies that would exceed half the rate are
/// removed. Throws std::bad_alloc if the library runs out of memory.
[[nodiscard]] std::vector<float> Resample(std::span<const float> sound, double pitch, std::int64_t outCount);

} // namespace sprout
