// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "core/Song.h"

namespace sprout {

/// A thumbnail shows at most so many tracks, the first of the song: more could not be told apart.
inline constexpr std::int32_t kThumbnailTracks = 24;
/// A shorter song does not fill the width of its thumbnail. At the reference tempo that is 12 seconds.
inline constexpr std::int32_t kThumbnailLeastCells = 64;

/// In pixels. A smaller picture has no room for all those tracks.
inline constexpr int kThumbnailSmallestSide = 32;

/// Painted cells, from the left edge of the first to the right edge of the last; at least one pixel wide.
struct ThumbnailBar {
    int left = 0;
    int right = 0;
    friend bool operator==(const ThumbnailBar&, const ThumbnailBar&) = default;
};

/// A track: its row, and the bars on it from the left. Bars of one row do not touch.
struct ThumbnailLane {
    std::int32_t track = 0; ///< from 1
    int top = 0;
    std::vector<ThumbnailBar> bars;
};

/// Where everything is in the square picture of a song, in whole pixels from its top left.
struct ThumbnailPlan {
    int left = 0; ///< of all rows
    int right = 0;
    int rowHeight = 0;
    int barInset = 0; ///< of a bar in its row, above and below
    int meadowTop = 0;
    std::vector<ThumbnailLane> lanes;
};

/// Plans the picture of a song's first tracks: the painted part of the song fills the width. side: of the picture, at
/// least `kThumbnailSmallestSide`.
[[nodiscard]] ThumbnailPlan PlanThumbnail(const SongState& paint, int side);

} // namespace sprout
