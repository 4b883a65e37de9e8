// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PlayIndicator.h"

#include <algorithm>

#include "base/Errors.h"
#include "sound/PlayMod.h"

namespace sprout {

namespace {

/// Beyond every surface, but its pixel position still fits a number.
constexpr std::int32_t kFarthestCell = 1'000'000;

PlayIndicator IndicatorAt(std::int32_t cell, const PlayModState& play, const TrackView& view)
{
    PlayIndicator indicator;
    const std::int32_t x = CellLeft(view, cell);
    if (play.PlayingTrack == kWholeSong)
        indicator.songLeft = x;
    else if (RowIsVisible(view, play.PlayingTrack))
        indicator.track = PlayIndicator::OnRow{x, RowTop(view, play.PlayingTrack) + kPaintTop};
    return indicator;
}

} // namespace

std::optional<std::int32_t> MarkerCell(const PlayModState& play)
{
    if (play.PlayingTrack == 0)
        return std::nullopt;
    try {
        return std::min(CellInPlay(play), kFarthestCell);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::int32_t FollowingFirstCell(const TrackView& view, std::int32_t markerCell, FollowedEdges edges,
                                std::int32_t lastFirstCell)
{
    const std::int32_t x = CellLeft(view, markerCell);
    const bool isOutside = x >= view.trackPicWidth || (edges == FollowedEdges::Both && x < 0);
    return isOutside ? std::clamp(markerCell - 1, 1, std::max(lastFirstCell, 1)) : view.FirstCell;
}

PlayIndicator MovePlayIndicator(const PlayModState& play, const TrackView& view)
{
    const std::optional<std::int32_t> cell = MarkerCell(play);
    return cell ? IndicatorAt(*cell, play, view) : PlayIndicator();
}

} // namespace sprout
