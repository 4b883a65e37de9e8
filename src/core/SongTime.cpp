// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/SongTime.h"

#include <algorithm>
#include <limits>

#include "base/Numbers.h"

namespace sprout {

std::int32_t CellOffset(std::int32_t cell, std::int32_t origin, std::int32_t tempo, std::int32_t rate)
{
    const double cellSeconds = CellSeconds(tempo);
    return RoundHalfEven((static_cast<double>(cell) - origin) * cellSeconds * rate);
}

std::int32_t SongSeconds(std::int32_t tempo)
{
    return RoundHalfEven(CellSeconds(tempo) * kSongCells);
}

std::int32_t TempoPercent(std::int32_t tempo)
{
    return std::clamp(RoundHalfEven(static_cast<double>(tempo) * 100 / kReferenceTempo), 50, 200);
}

std::int32_t TempoOfPercent(std::int32_t percent)
{
    return RoundHalfEven(static_cast<double>(percent) * kReferenceTempo / 100);
}

std::int32_t AudioCycleCells(const WaveData& audio)
{
    if (audio.Rate <= 0)
        return 1;
    const double seconds = static_cast<double>(audio.Length) / audio.Rate;
    const double cells =
        std::min<double>(seconds / CellSeconds(kReferenceTempo), std::numeric_limits<std::int32_t>::max());
    return std::max(RoundHalfEven(cells), 1);
}

std::int32_t FindFirstPainted(const Track& track, std::int32_t songCells)
{
    const auto cells = std::min(static_cast<std::size_t>(std::max(songCells, 0)) + 1, track.Painted.size());
    for (std::int32_t cell = 1; static_cast<std::size_t>(cell) < cells; ++cell)
        if (track.IsPainted(cell))
            return cell;
    return 0;
}

} // namespace sprout
