// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/StripChoice.h"

#include <algorithm>
#include <array>

namespace sprout {

namespace {

/// In a row, heights from its top.
constexpr std::array kStripColumns{StripChoice::Point{40, 22}, StripChoice::Point{77, 22}, StripChoice::Point{118, 22}};

} // namespace

void StripChoice::ChooseRow(std::int32_t track, std::int32_t trackCount)
{
    row = std::clamp(track, 1, std::max(trackCount, 1));
}

void StripChoice::ChooseColumn(std::int32_t step)
{
    column = std::clamp(column + step, 0, static_cast<std::int32_t>(kStripColumns.size()) - 1);
}

void StripChoice::FitSong(std::int32_t trackCount)
{
    row = std::min(row, trackCount);
}

StripChoice::Point StripChoice::Place(const TrackView& view) const
{
    const Point& inRow = kStripColumns[static_cast<std::size_t>(column)];
    return {inRow.x, RowTop(view, row) + inRow.y};
}

} // namespace sprout
