// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/Song.h"

namespace sprout {

// The song's grid of cells in time.

/// Duration of one cell in seconds. tempo: cells per minute; 0 gives infinity, as the division does.
[[nodiscard]] inline double CellSeconds(std::int32_t tempo)
{
    return 60.0 / tempo;
}

/// Frames from cell `origin` to cell `cell` at `rate` frames per second, rounded. Throws `RunTimeError` if that is not
/// a 32-bit number.
[[nodiscard]] std::int32_t CellOffset(std::int32_t cell, std::int32_t origin, std::int32_t tempo, std::int32_t rate);

/// The whole grid's duration in seconds at a tempo, rounded. Throws `RunTimeError` if that is not a 32-bit number.
[[nodiscard]] std::int32_t SongSeconds(std::int32_t tempo);

/// The tempo in percent of the reference tempo, 50 to 200.
[[nodiscard]] std::int32_t TempoPercent(std::int32_t tempo);

/// Cells per minute for a percentage.
[[nodiscard]] std::int32_t TempoOfPercent(std::int32_t percent);

/// Cells that one pass of an audio track's wave covers at the reference tempo, at least 1; 1 for a wave without a rate.
[[nodiscard]] std::int32_t AudioCycleCells(const WaveData& audio);

/// First painted cell of a track, 0 if there is none.
[[nodiscard]] std::int32_t FindFirstPainted(const Track& track, std::int32_t songCells);

} // namespace sprout
