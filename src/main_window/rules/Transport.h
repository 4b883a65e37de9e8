// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/Words.h"
#include "core/Song.h"

namespace sprout {

/// A message of two lines; the second may be empty.
struct TwoLines {
    LaterWords line1;
    LaterWords line2;
    friend bool operator==(const TwoLines&, const TwoLines&) = default;
};

/// What a play command checks first.
struct PlayCheck {
    TwoLines message; ///< to show; none if its first line is empty
    bool goesOn = true;
};

/// Before playing the whole song: is there a tune or an audio, and is anything painted? Without a tune the command
/// continues after its message.
[[nodiscard]] PlayCheck CheckSong(const SongState& song);

/// The same before playing from a cell. With five tracks or more nothing is checked.
[[nodiscard]] PlayCheck CheckSongFromCell(const SongState& song);

/// Before playing one track: does a step of its tune sound, and is the track painted?
[[nodiscard]] PlayCheck CheckTrack(const Track& track, std::int32_t songCells);

/// Before playing a track from a cell: is it painted there or to the right of it?
[[nodiscard]] PlayCheck CheckTrackFromCell(const Track& track, std::int32_t songCells, std::int32_t cell);

/// Milliseconds until a hovered tune plays again: its cycle plus one second. length: frames of the rendered cycle.
[[nodiscard]] std::int32_t TuneHoverInterval(std::int32_t length, std::int32_t stepCount, std::int32_t tempo);

/// The same for a hovered audio.
[[nodiscard]] std::int32_t AudioHoverInterval(const WaveData& audio);

/// Milliseconds between two checks for a hover or a stroke.
inline constexpr std::int32_t kHoverWaitInterval = 200;

} // namespace sprout
