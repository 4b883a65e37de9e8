// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <deque>

namespace sprout {

/// The highest peak that a sample of `bits` can have.
[[nodiscard]] std::int32_t PeakMaximum(std::int32_t bits);

/// A level meter of `height` rows, filled from the bottom.
struct Meter {
    std::int32_t height = 0;      ///< pixels
    std::int32_t peakMaximum = 1; ///< above 0

    /// The top row of the bar, from 0; `height` if the bar is empty. Peaks out of range are clamped.
    [[nodiscard]] std::int32_t BarTop(std::int32_t peak) const;
};

/// Remembers the loudest peak of the last second.
class LoudestOfSecond {
public:
    /// Records a peak at `pieces` pieces of 20 ms, and returns the loudest of the last 50 pieces.
    std::int32_t Note(std::int64_t pieces, std::int32_t peak);

private:
    struct Noted {
        std::int64_t pieces = 0;
        std::int32_t peak = 0;
    };
    std::deque<Noted> noted; ///< each louder than the ones behind it
};

/// Filled columns of a progress bar of `width`; all of them from `limitSeconds` on.
[[nodiscard]] std::int32_t ProgressColumns(std::int32_t width, double seconds, double limitSeconds);

} // namespace sprout
