// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "main_window/rules/TrackGeometry.h"

namespace sprout {

/// What plays, as the player tells it.
struct PlayedSound {
    std::int32_t PlayingTrack = 0; ///< 0 nothing, `kWholeSong`, or a track
    double PlayCursor = 0;         ///< frames since the start
    std::int32_t rate = 0;         ///< of the played wave
    std::int32_t PlayTempo = 0;    ///< when it was started
    std::int32_t PlayStartPos = 0; ///< cell of the first frame
};

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

/// Cell that sounds. Throws `RunTimeError` where rate or tempo give no number.
[[nodiscard]] std::int32_t PlayingCell(const PlayedSound& sound);

/// Where the markers stand. A sound whose cell cannot be told has none.
[[nodiscard]] PlayIndicator MovePlayIndicator(const PlayedSound& sound, const TrackView& view);

} // namespace sprout
