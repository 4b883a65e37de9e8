// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// Positions where an attack begins, ascending.
///
/// An attack is where the energy of the second difference, which favours the high frequencies of a stroke, exceeds
/// three times its value in each of the ten hops before and a thousandth of the sound's maximum; attacks are at least
/// twelve hops apart. Accurate to `sizes.onsetGrain` samples. Cost: one pass over the sound.
[[nodiscard]] std::vector<Index> FindOnsets(std::span<const float> sound, const Sizes& sizes);

} // namespace sprout::stretch
