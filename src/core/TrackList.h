// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "base/WaveData.h"
#include "core/Song.h"

namespace sprout {

// The shared song's list of tracks.

/// The track of that number, nullptr outside 1..`TrackCount`.
[[nodiscard]] Track* TrackOfNumber(std::int32_t number);

/// Appends an empty music track and returns its number.
std::int32_t AddMusicTrack();

/// Finishes adding it: removes the track again if its tune has no name. The song counts as changed either way.
void EndAddMusicTrack();

/// Appends an audio track with a wave; nothing is painted on it.
void AddAudioTrack(WaveData wave);

/// Deletes a track; those after it move up by one. The only track is cleared instead, which does not affect the mix or
/// the song's changed flag. trackNumber: 1..`TrackCount`.
void DeleteTrack(std::int32_t trackNumber);

/// Swaps the two pictures of every track without a chosen tune. Returns the tracks that changed.
std::vector<std::int32_t> BlinkTunesNotFilled();

} // namespace sprout
