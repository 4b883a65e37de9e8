// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TrackPointer.h"

#include "main_window/rules/CellValues.h"

namespace sprout {

namespace {

constexpr std::int32_t kGroupStartColour = 0xFF8080;
constexpr std::int32_t kCellColour = 0xC0FFFF;

std::optional<CellCursor> CursorOfCell(const TrackView& view, std::int32_t cell, std::int32_t track)
{
    const std::int32_t x = CellLeft(view, cell);
    if (x < 0 || x > view.trackPicWidth || !RowIsVisible(view, track))
        return std::nullopt;
    const bool startsGroup = (cell - 1) % kCellsOfAGroup == 0;
    return CellCursor{x, RowTop(view, track) + kPaintTop, startsGroup ? kGroupStartColour : kCellColour};
}

} // namespace

TrackPointer PointerOverTracks(const TrackView& view, const TrackHit& hit, std::int32_t dragTrack)
{
    if (!hit.hit)
        return {};
    const std::string cell = std::to_string(hit.cell);
    if (hit.track == kWholeSong)
        return {PointerImage::PlayTool, kTimeBandHint, cell, std::nullopt};
    const std::int32_t track = dragTrack > 0 ? dragTrack : hit.track;
    return {PointerImage::ToolCursor, kTracksHint, cell, CursorOfCell(view, hit.cell, track)};
}

Words CellInWords(const SongState& song, std::int32_t track, std::int32_t cell)
{
    if (track < 1 || track > song.TrackCount)
        return Words::Text("Time, cell %1", cell);
    return At(song.Tracks, track).IsPainted(cell) ? Words::Text("Track %1, cell %2, painted", track, cell)
                                                  : Words::Text("Track %1, cell %2, empty", track, cell);
}

} // namespace sprout
