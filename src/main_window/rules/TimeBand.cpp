// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TimeBand.h"

#include <algorithm>

#include "core/Numbers.h"
#include "core/SongModel.h"
#include "main_window/rules/CellValues.h"

namespace sprout {

namespace {

constexpr std::int32_t kSecondsBetweenLabels = 5;
constexpr double kLabelsBeforeTheBand = -5;

bool AnyTrackIsPainted(const SongState& song, std::int32_t cell)
{
    for (std::int32_t track = 1; track <= song.TrackCount; ++track)
        if (At(At(song.Tracks, track).Painted, cell) == kPaintedCell)
            return true;
    return false;
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
    const std::int32_t lastSecond = RoundHalfEven(cellSeconds * song.SongCells + kSecondsBetweenLabels);
    std::vector<SecondsLabel> labels;
    for (std::int32_t second = 0; second <= lastSecond; second += kSecondsBetweenLabels) {
        const double x = (second / cellSeconds - view.FirstCell + 1) * kCellWidth;
        if (x > kLabelsBeforeTheBand && x <= view.trackPicWidth)
            labels.push_back({second, x});
    }
    return labels;
}

} // namespace sprout
