// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PlayIndicator.h"

#include <algorithm>

namespace sprout {

std::int32_t FollowingFirstCell(const TrackView& view, std::int32_t markerCell, FollowedEdges edges,
                                std::int32_t lastFirstCell)
{
    const std::int32_t x = CellLeft(view, markerCell);
    const bool isOutside = x >= view.trackPicWidth || (edges == FollowedEdges::Both && x < 0);
    return isOutside ? std::clamp(markerCell - 1, 1, std::max(lastFirstCell, 1)) : view.FirstCell;
}

PlayIndicator MovePlayIndicator(std::int32_t playingTrack, std::optional<std::int32_t> cell, const TrackView& view)
{
    PlayIndicator indicator;
    if (!cell)
        return indicator;
    const std::int32_t x = CellLeft(view, *cell);
    if (playingTrack == kWholeSong)
        indicator.songLeft = x;
    else if (RowIsVisible(view, playingTrack))
        indicator.track = PlayIndicator::OnRow{x, RowTop(view, playingTrack) + kPaintTop};
    return indicator;
}

} // namespace sprout
