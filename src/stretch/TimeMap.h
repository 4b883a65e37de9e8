// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "stretch/Sizes.h"

namespace sprout::stretch {

/// Maps moments of a slice's result to moments of the slice: the attack one to one, the rest at a constant pace.
class TimeMap {
public:
    /// verbatim: samples at the start that keep their place, fewer than both counts.
    TimeMap(Index verbatim, Index inCount, Index outCount);

    /// Input sample for output sample `out`; continues at the same pace beyond the end, and one to one before the
    /// start.
    [[nodiscard]] Index operator()(Index out) const;

private:
    Index verbatim_;
    double pace_;
};

} // namespace sprout::stretch
