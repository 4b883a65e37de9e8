// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "base/WaveData.h"
#include "core/Song.h"

namespace sprout {

/// Renders only one music track of the shared song: fills `TrackRender` and `FirstPainted`, unless it is valid.
/// trackNumber: 1..`TrackCount`; others do nothing. A run-time error leaves an empty, valid wave. Throws
/// std::bad_alloc; the track is then unchanged, or empty and not valid.
void RenderTuneTrack(std::int32_t trackNumber);

/// The same for an audio track, whose wave repeats along the paint.
void RenderAudioTrack(std::int32_t trackNumber);

/// Mixes the whole shared song: fills `SongMix` and `SongFirstPos`, unless it is valid. A run-time error leaves an
/// empty, valid wave. `SongFirstPos` is -1 in a song without paint. Throws std::bad_alloc; the mix is then empty and
/// not valid.
void MixSong();

/// The sound of a wave whose first frame belongs to cell `origin`, played from `cell`.
struct PlayFrom {
    WaveData Wave;
    std::int32_t StartCell = 0;
};

/// The part from a cell on, or the whole wave from the origin if the cell is at or before it. tempo: cells per minute.
/// Nothing if the cell is at or beyond the wave's end, or its position is not a number.
[[nodiscard]] std::optional<PlayFrom> CutFromCell(const WaveData& wave, std::int32_t origin, std::int32_t cell,
                                                  std::int32_t tempo);

} // namespace sprout
