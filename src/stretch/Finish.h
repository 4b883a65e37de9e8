// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// The samples as floats in the same units, without their offset (the mean) if that is above 64 units.
[[nodiscard]] std::vector<float> ToFloats(std::span<const std::int16_t> samples);

/// Fades the last 2 ms out, since a stretched sound can end on a click, and the first eight samples in if the sound
/// that it came from begins near zero, which `startsQuietly` tells.
void FadeEnds(std::span<float> sound, bool startsQuietly, const Sizes& sizes);

/// Whether the first sample is so small that a fade in hides nothing of the attack.
[[nodiscard]] bool StartsQuietly(std::span<const std::int16_t> samples);

/// Rounded to 16 bits; what is too loud is cut off at full scale and never wraps round.
[[nodiscard]] std::vector<std::int16_t> ToSamples(std::span<const float> sound);

} // namespace sprout::stretch
