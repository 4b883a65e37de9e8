// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PlayIndicator.h"

#include <algorithm>

#include "core/Errors.h"
#include "sound/PlayMod.h"

namespace sprout {

namespace {

/// Beyond every surface, and its pixels are still a number.
constexpr std::int32_t kFarthestCell = 1'000'000;

PlayIndicator IndicatorAt(const PlayModState& play, const TrackView& view)
{
    PlayIndicator indicator;
    const std::int32_t x = CellLeft(view, std::min(CellInPlay(play), kFarthestCell));
    if (play.PlayingTrack == kWholeSong)
        indicator.songLeft = x;
    else if (RowIsVisible(view, play.PlayingTrack))
        indicator.track = PlayIndicator::OnRow{x, RowTop(view, play.PlayingTrack) + kPaintTop};
    return indicator;
}

} // namespace

PlayIndicator MovePlayIndicator(const PlayModState& play, const TrackView& view)
{
    if (play.PlayingTrack == 0)
        return {};
    try {
        return IndicatorAt(play, view);
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace sprout
