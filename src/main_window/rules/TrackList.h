// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "base/WaveData.h"
#include "core/Song.h"

namespace sprout {

// Edits of the shared song's list of tracks.

/// Adds an empty music track behind the others and returns its number.
std::int32_t AddMusicTrack();

/// Ends adding it: a track whose tune was given no name is taken away again. The song counts as changed either way.
void EndAddMusicTrack();

/// Adds an audio track of a wave, which nothing is painted on, behind the others.
void AddAudioTrack(WaveData wave);

/// Takes a track away; those behind it move up by one. The only track is emptied instead, which changes neither mix nor
/// song mark. trackNumber: 1..`TrackCount`.
void DeleteTrack(std::int32_t trackNumber);

/// Notes that a track has another tune.
void MarkTuneChosen(std::int32_t trackNumber);

/// Swaps the two pictures of every track without a chosen tune. Returns the tracks that look different now.
std::vector<std::int32_t> BlinkTunesNotFilled();

} // namespace sprout
