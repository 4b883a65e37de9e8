// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// Spectral flatness of a sound in dB, from 0 (white noise: about -2.5) downwards.
///
/// In frames of 4096 samples at 44,100 Hz and bands of 16 bins up to 15 kHz: the ratio of geometric to arithmetic mean
/// of the power, weighted by amplitude. Drums and cymbals give -2 to -6, tonal sounds less than -11. Silence gives
/// -100. Only examines a few frames of a long sound.
[[nodiscard]] double FlatnessDb(std::span<const float> sound, const Sizes& sizes);

/// Whether the sound is noise, for which a short window is better.
[[nodiscard]] bool IsNoisy(std::span<const float> sound, const Sizes& sizes);

} // namespace sprout::stretch
