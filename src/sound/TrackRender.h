// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>

#include "base/WaveData.h"
#include "core/Song.h"

namespace sprout {

/// Renders a music track of the shared song alone: fills `TrackRender` and `FirstPainted`, unless it is valid.
/// trackNumber: 1..`TrackCount`; others do nothing. A run-time error leaves an empty wave, valid. Throws
/// std::bad_alloc, and the track is as it was, or empty and to be rendered.
void RenderTuneTrack(std::int32_t trackNumber);

/// The same for an audio track, whose wave sounds again and again along the paint.
void RenderAudioTrack(std::int32_t trackNumber);

/// Mixes the whole shared song: fills `SongMix` and `SongFirstPos`, unless it is valid. A run-time error leaves an
/// empty wave, valid. `SongFirstPos` is -1 in a song without paint. Throws std::bad_alloc, and the mix is empty and to
/// be rendered.
void MixSong();

/// What sounds when a wave whose first frame belongs to cell `origin` is played from `cell`.
struct PlayFrom {
    WaveData Wave;
    std::int32_t StartCell = 0;
};

/// The part from a cell on, or the whole from the origin where the cell lies at or before it. tempo: cells a minute.
/// Nothing where the cell lies at or beyond the wave's end, or its place is no number.
[[nodiscard]] std::optional<PlayFrom> CutFromCell(const WaveData& wave, std::int32_t origin, std::int32_t cell,
                                                  std::int32_t tempo);

} // namespace sprout
