// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/PlayIndicator.h"

#include "core/Errors.h"
#include "core/Numbers.h"
#include "core/SongModel.h"

namespace sprout {

namespace {

PlayIndicator IndicatorAt(const PlayedSound& sound, const TrackView& view)
{
    PlayIndicator indicator;
    const std::int32_t x = CellLeft(view, PlayingCell(sound));
    if (sound.PlayingTrack == kWholeSong)
        indicator.songLeft = x;
    else if (RowIsVisible(view, sound.PlayingTrack))
        indicator.track = PlayIndicator::OnRow{x, RowTop(view, sound.PlayingTrack) + kPaintTop};
    return indicator;
}

} // namespace

std::int32_t PlayingCell(const PlayedSound& sound)
{
    return RoundHalfEven(sound.PlayCursor / sound.rate / CellSeconds(sound.PlayTempo) + sound.PlayStartPos);
}

PlayIndicator MovePlayIndicator(const PlayedSound& sound, const TrackView& view)
{
    if (sound.PlayingTrack == 0)
        return {};
    try {
        return IndicatorAt(sound, view);
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace sprout
