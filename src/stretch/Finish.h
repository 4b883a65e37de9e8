// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// The samples as floats in the same units, without their offset (the mean) if that is above 64 units.
[[nodiscard]] std::vector<float> ToFloats(std::span<const std::int16_t> samples);

/// Fades out the last 2 ms, because a stretched sound can end with a click, and fades in the first eight samples if
/// `startsQuietly`: the original sound begins near zero.
void FadeEnds(std::span<float> sound, bool startsQuietly, const Sizes& sizes);

/// Whether the first sample is so quiet that a fade-in does not hide the attack.
[[nodiscard]] bool StartsQuietly(std::span<const std::int16_t> samples);

/// Rounded to 16 bits; louder samples are clipped at full scale and never wrap around.
[[nodiscard]] std::vector<std::int16_t> ToSamples(std::span<const float> sound);

} // namespace sprout::stretch
