// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/Song.h"

namespace sprout {

/// Steps in the initial cycle of a tune without a file.
inline constexpr std::int32_t kBlankTuneSteps = 16;

/// Replaces the shared song with the default one: two empty music tracks under the first free name "Untitled",
/// "Untitled 1", ... of `UserSongs`. Leaves `SongChanged` as it is.
void NewSong();

/// Empties a track of the shared song and makes it a music track without a tune; keeps its audio. Numbers outside
/// 1..`TrackCount` do nothing.
void ResetTrack(std::int32_t trackNumber);

/// A blank cycle of 16 steps, all off.
[[nodiscard]] Tune BlankTune();

/// Makes `tune` a blank one and lets tracks without a tune blink.
void ResetTune(Tune& tune);

/// Sets the shared song's tempo to a percentage of the reference tempo. Returns whether it changed; what it makes stale
/// is then marked, and the song as changed.
bool SetTempoPercent(std::int32_t percent);

} // namespace sprout
