// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

#include "core/Song.h"

namespace sprout {

/// A message of two lines; the second may be empty.
struct TwoLines {
    std::string_view line1;
    std::string_view line2;
    friend bool operator==(const TwoLines&, const TwoLines&) = default;
};

/// What a command that plays finds out first.
struct PlayCheck {
    TwoLines message; ///< to be shown; none if its first line is empty
    bool goesOn = true;
};

/// Before the whole song is played: is there a tune or an audio, and is anything painted? Without a tune the command
/// goes on behind its message.
[[nodiscard]] PlayCheck CheckSong(const SongState& song);

/// The same before it is played from a cell. From five tracks on nothing is checked.
[[nodiscard]] PlayCheck CheckSongFromCell(const SongState& song);

/// Before a track is played alone: does a step of its tune sound, and is it painted?
[[nodiscard]] PlayCheck CheckTrack(const Track& track, std::int32_t songCells);

/// Before it is played from a cell: is it painted there or to the right of it?
[[nodiscard]] PlayCheck CheckTrackFromCell(const Track& track, std::int32_t songCells, std::int32_t cell);

/// Milliseconds until a hovered tune sounds again: its cycle and a second. length: frames of the rendered cycle.
[[nodiscard]] std::int32_t TuneHoverInterval(std::int32_t length, std::int32_t stepCount, std::int32_t tempo);

/// The same for a hovered audio.
[[nodiscard]] std::int32_t AudioHoverInterval(const WaveData& audio);

/// Milliseconds between two looks for a hover or a stroke.
inline constexpr std::int32_t kHoverWaitInterval = 200;

} // namespace sprout
