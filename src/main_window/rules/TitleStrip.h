// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "main_window/rules/TrackGeometry.h"

namespace sprout {

/// Width of the title strip.
inline constexpr std::int32_t kTitleStripWidth = 140;

// Positions in a row of the title strip; heights count from the row's top.

inline constexpr std::int32_t kTrackPictureLeft = 24;
inline constexpr std::int32_t kTrackNumberTop = 13;
inline constexpr std::int32_t kDeleteButtonLeft = 70;
inline constexpr std::int32_t kDeleteButtonTop = 15;
inline constexpr std::int32_t kPlayPicLeft = 102;
inline constexpr std::int32_t kPlayPicTop = 7;

/// Left edge of a track's number.
[[nodiscard]] std::int32_t TrackNumberLeft(std::int32_t track);

/// The buttons that float over a row while the pointer is there.
struct FloatingButtons {
    std::int32_t HoverTrack = 0; ///< track under the pointer, 0 for none
    bool TrackTuneBtn = false;
    bool TrackAudioBtn = false;
    bool TrackDeleteBtn = false;
    bool TrackPlayBtn = false;
    std::int32_t pictureButtonTop = 0; ///< of `TrackTuneBtn` and `TrackAudioBtn`
    std::int32_t deleteButtonTop = 0;
    std::int32_t playButtonTop = 0;

    /// True if any of them is visible.
    [[nodiscard]] bool OverlayShown() const;
};

/// What floats when the pointer is at (x, y) of the strip. track: the result of `TitleStripTrack`; isAudio: its kind.
[[nodiscard]] FloatingButtons HoverTitleStrip(const TrackView& view, std::int32_t track, bool isAudio, std::int32_t x,
                                              std::int32_t y);

} // namespace sprout
