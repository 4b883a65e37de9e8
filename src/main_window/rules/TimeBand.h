// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "core/Song.h"
#include "main_window/rules/TrackGeometry.h"

namespace sprout {

/// A cell of the band in which some track is painted.
struct BusyMark {
    std::int32_t x = 0;       ///< left edge; one cell wide, as high as the band
    std::int32_t picture = 0; ///< which of the two pictures; alternates every eight cells
    friend bool operator==(const BusyMark&, const BusyMark&) = default;
};

/// A number of seconds on the band.
struct SecondsLabel {
    std::int64_t seconds = 0;
    double x = 0; ///< left edge, up to 5 pixels before the band
};

/// The busy cells in view, from the left.
[[nodiscard]] std::vector<BusyMark> BusyMarks(const SongState& song, const TrackView& view);

/// Every fifth second that is in view at the song's tempo; none at a tempo of 0 or below.
[[nodiscard]] std::vector<SecondsLabel> SecondsLabels(const SongState& song, const TrackView& view);

} // namespace sprout
