// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "main_window/rules/TrackGeometry.h"

namespace sprout {

/// The two markers of `PlayPosImg`; an empty value hides the marker.
struct PlayIndicator {
    struct OnRow {
        std::int32_t left = 0;
        std::int32_t top = 0;
        friend bool operator==(const OnRow&, const OnRow&) = default;
    };
    std::optional<std::int32_t> songLeft; ///< left edge of element 0, for the whole song
    std::optional<OnRow> track;           ///< position of element 1, for one track
};

/// The edges of the surface that make the view follow a marker: both when a play starts, later the right one.
enum class FollowedEdges { Right, Both };

/// The `FirstCell` that brings a marker's cell into view; the current one if the cell is already in view.
/// lastFirstCell: the end of the scroll bar.
[[nodiscard]] std::int32_t FollowingFirstCell(const TrackView& view, std::int32_t markerCell, FollowedEdges edges,
                                              std::int32_t lastFirstCell);

/// The positions of the markers at a cell. playingTrack: `kWholeSong` for the song. An unknown cell has none.
[[nodiscard]] PlayIndicator MovePlayIndicator(std::int32_t playingTrack, std::optional<std::int32_t> cell,
                                              const TrackView& view);

} // namespace sprout
