// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// Which moment of a slice is heard at a moment of its result: the attack one to one, the rest at an even pace.
class TimeMap {
public:
    /// verbatim: samples from the start that keep their place, fewer than both counts.
    TimeMap(Index verbatim, Index inCount, Index outCount);

    /// Input sample for output sample `out`; goes on evenly beyond the end, and one to one before the start.
    [[nodiscard]] Index operator()(Index out) const;

private:
    Index verbatim_;
    double pace_;
};

} // namespace sprout::stretch
