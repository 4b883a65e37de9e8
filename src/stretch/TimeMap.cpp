// SPDX-License-Identifier: GPL-3.0-or-later
#include "stretch/TimeMap.h"

#include <cassert>
#include <cmath>

namespace sprout::stretch {

TimeMap::TimeMap(Index verbatim, Index inCount, Index outCount)
    : verbatim_(verbatim), pace_(static_cast<double>(inCount - verbatim) / static_cast<double>(outCount - verbatim))
{
    assert(verbatim < inCount && verbatim < outCount);
}

Index TimeMap::operator()(Index out) const
{
    if (out <= verbatim_)
        return out;
    return verbatim_ + std::llround(static_cast<double>(out - verbatim_) * pace_);
}

} // namespace sprout::stretch
