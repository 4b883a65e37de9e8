// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TitleStrip.h"

namespace sprout {

namespace {

bool IsWithin(std::int32_t value, std::int32_t first, std::int32_t last)
{
    return value >= first && value <= last;
}

} // namespace

std::int32_t TrackNumberLeft(std::int32_t track)
{
    return track < 10 ? 6 : 2;
}

bool FloatingButtons::OverlayShown() const
{
    return TrackTuneBtn || TrackAudioBtn || TrackDeleteBtn || TrackPlayBtn;
}

FloatingButtons HoverTitleStrip(const TrackView& view, std::int32_t track, bool isAudio, std::int32_t x, std::int32_t y)
{
    if (track == 0)
        return {};
    FloatingButtons shown;
    const std::int32_t top = RowTop(view, track);
    const bool onPicture = IsWithin(x, 22, 56);
    shown.HoverTrack = track;
    shown.TrackTuneBtn = onPicture && !isAudio;
    shown.TrackAudioBtn = onPicture && isAudio;
    shown.TrackDeleteBtn = IsWithin(x, 71, 83) && IsWithin(y, top + 15, top + 30);
    shown.TrackPlayBtn = IsWithin(x, 100, 134);
    shown.pictureButtonTop = top + kPaintTop - 1;
    shown.deleteButtonTop = top + kDeleteButtonTop;
    shown.playButtonTop = top + kPlayPicTop;
    return shown;
}

} // namespace sprout
