// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "main_window/rules/TrackGeometry.h"
#include "sound/PlayShared.h"

namespace sprout {

/// The two markers of `PlayPosImg`; nothing: hidden.
struct PlayIndicator {
    struct OnRow {
        std::int32_t left = 0;
        std::int32_t top = 0;
        friend bool operator==(const OnRow&, const OnRow&) = default;
    };
    std::optional<std::int32_t> songLeft; ///< left edge of element 0, for the whole song
    std::optional<OnRow> track;           ///< place of element 1, for one track
};

/// The cell that a marker stands on, of the song or of a track. Nothing for a sound that is no track's, or whose cell
/// cannot be told.
[[nodiscard]] std::optional<std::int32_t> MarkerCell(const PlayModState& play);

/// The edges of the surface beyond which a marker is followed: both where a play starts, later the right one.
enum class FollowedEdges { Right, Both };

/// The `FirstCell` that brings a marker's cell into view; that of the view where it is in view already. lastFirstCell:
/// the end of the scroll bar.
[[nodiscard]] std::int32_t FollowingFirstCell(const TrackView& view, std::int32_t markerCell, FollowedEdges edges,
                                              std::int32_t lastFirstCell);

/// Where the markers stand. A sound that is no track's, or whose cell cannot be told, has none.
[[nodiscard]] PlayIndicator MovePlayIndicator(const PlayModState& play, const TrackView& view);

} // namespace sprout
