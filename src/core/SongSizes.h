// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "core/Song.h"

namespace sprout {

// The arrays of a song and of a tune begin at 1 and have their counts beside them. Only these functions change a size,
// so that both agree. A count may be below its array's bound only where a song could not be read.

/// Keeps the first tracks; new ones are empty records.
void ResizeTracks(SongState& song, std::int32_t count);
void EraseTrack(SongState& song, std::int32_t track);
/// What remains of a song that could not be read: no track counts.
void ForgetTracks(SongState& song);

void ResizeSongBeats(SongState& song, std::int32_t count);
/// Appends a beat and returns its number.
std::int32_t AppendSongBeat(SongState& song, Beat beat);
/// beats: with an unused entry 0.
void ReplaceSongBeats(SongState& song, std::vector<Beat> beats);

/// Keeps the first steps; new ones have the values of an empty step.
void ResizeSteps(Tune& tune, std::int32_t count);
/// Makes all steps equal to `step`.
void AssignSteps(Tune& tune, std::int32_t count, const TuneStep& step);

} // namespace sprout
