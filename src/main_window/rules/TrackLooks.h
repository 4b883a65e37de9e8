// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "core/Song.h"
#include "main_window/rules/PaintedRuns.h"
#include "main_window/rules/TimeBand.h"
#include "main_window/rules/TrackGeometry.h"

namespace sprout {

// What the painting surface shows, as values: a picture is drawn anew only if its look has changed.

/// All that a row's picture depends on, apart from view and pixel ratio.
struct RowLook {
    std::int32_t trackType = 0;
    std::int32_t tile = 0;
    std::int32_t cycle = 0;
    bool painted = false; ///< somewhere in the song, even if not in view
    std::vector<PaintedRun> runs;
    friend bool operator==(const RowLook&, const RowLook&) = default;
};
[[nodiscard]] RowLook LookOfRow(const SongState& song, std::int32_t track, const TrackView& view);

/// All that the time band's picture depends on, apart from view and pixel ratio.
struct TopLook {
    std::int32_t songCells = 0;
    std::int32_t tempo = 0;
    std::vector<BusyMark> marks;
    friend bool operator==(const TopLook&, const TopLook&) = default;
};
[[nodiscard]] TopLook LookOfTop(const SongState& song, const TrackView& view);

} // namespace sprout
