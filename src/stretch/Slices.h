// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// A part of a sound that is stretched alone, so that its end does not smear into the attack after it.
struct Slice {
    Index inFirst = 0;
    Index inCount = 0;
    Index outFirst = 0;
    Index outCount = 0;
    Index verbatim = 0; ///< samples at the start that are not stretched: the attack

    bool operator==(const Slice&) const = default;
};

/// Cuts a sound of `inCount` samples, to be stretched to `outCount`, ahead of its onsets (ascending).
///
/// The slices cover both lengths without a gap, and each onset that has a slice lands at round(onset x stretch). Onsets
/// too close to the start, to the end or to the previous slice get none.
[[nodiscard]] std::vector<Slice> CutSlices(std::span<const Index> onsets, Index inCount, Index outCount,
                                           const Sizes& sizes);

} // namespace sprout::stretch
