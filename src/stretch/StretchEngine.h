// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// Stretches a sound to `outCount` samples without changing its pitch, slice by slice.
///
/// sound: at least 256 samples, in units of 16 bits. outCount: 256 or more.
[[nodiscard]] std::vector<float> StretchTime(std::span<const float> sound, Index outCount, const Sizes& sizes);

/// The sound at `pitch` times its pitch and `duration` times its length: ResultLength(samples, duration) samples.
///
/// pitch, duration: 0.5 to 2; 1 and 1 return the samples unchanged. rate: above 0. Keeps only the calling thread's
/// tables between two calls. Memory: a few times the input and the result. Throws std::bad_alloc.
[[nodiscard]] std::vector<std::int16_t> StretchSamples(std::span<const std::int16_t> samples, std::int32_t rate,
                                                       double pitch, double duration);

} // namespace sprout::stretch
