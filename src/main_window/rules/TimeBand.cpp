// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TimeBand.h"

#include <algorithm>
#include <cmath>

#include "core/SongTime.h"
#include "main_window/rules/CellValues.h"

namespace sprout {

namespace {

constexpr std::int32_t kSecondsBetweenLabels = 5;
constexpr double kLabelsBeforeTheBand = -5;

bool AnyTrackIsPainted(const SongState& song, std::int32_t cell)
{
    for (std::int32_t track = 1; track <= song.TrackCount; ++track)
        if (At(song.Tracks, track).IsPainted(cell))
            return true;
    return false;
}

/// A label at or before the first one in view, so that a long song costs no more than its view.
std::int64_t LabelAheadOf(const TrackView& view, double cellSeconds)
{
    const double secondsAhead = (view.FirstCell - 1 + kLabelsBeforeTheBand / kCellWidth) * cellSeconds;
    return std::max(static_cast<std::int64_t>(secondsAhead / kSecondsBetweenLabels), std::int64_t{0}) *
           kSecondsBetweenLabels;
}

} // namespace

std::vector<BusyMark> BusyMarks(const SongState& song, const TrackView& view)
{
    const std::int32_t last = std::min(LastVisibleCell(view), song.SongCells);
    std::vector<BusyMark> marks;
    for (std::int32_t cell = view.FirstCell; cell <= last; ++cell) {
        if (!AnyTrackIsPainted(song, cell))
            continue;
        const bool evenGroup = (cell - 1) / kCellsOfAGroup % 2 == 0;
        marks.push_back({CellLeft(view, cell), evenGroup ? 1 : 0});
    }
    return marks;
}

std::vector<SecondsLabel> SecondsLabels(const SongState& song, const TrackView& view)
{
    if (song.Tempo <= 0)
        return {};
    const double cellSeconds = CellSeconds(song.Tempo);
    const double lastSecond = std::nearbyint(cellSeconds * song.SongCells + kSecondsBetweenLabels);
    std::vector<SecondsLabel> labels;
    for (std::int64_t second = LabelAheadOf(view, cellSeconds); static_cast<double>(second) <= lastSecond;
         second += kSecondsBetweenLabels) {
        const double x = (static_cast<double>(second) / cellSeconds - view.FirstCell + 1) * kCellWidth;
        if (x > view.trackPicWidth)
            break;
        if (x > kLabelsBeforeTheBand)
            labels.push_back({second, x});
    }
    return labels;
}

} // namespace sprout
