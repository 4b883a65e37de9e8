// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/ControlBarPlaces.h"

#include <algorithm>
#include <initializer_list>

namespace sprout {

namespace {

constexpr std::int32_t kTool = 56;
constexpr std::int32_t kSmallTool = 40;
constexpr std::int32_t kToolsApart = 6;
constexpr std::int32_t kGroupsApart = 12;
constexpr std::int32_t kBarMargin = 8;
constexpr std::int32_t kBarTop = 8; ///< of the tools of the one row
constexpr std::int32_t kSongLine = 28;
constexpr std::int32_t kTempoLine = 36;
constexpr std::int32_t kTempoWidth = 312; ///< what the tempo bar asks for

/// Sets tools side by side, from the left or towards it.
class ToolRow {
public:
    ToolRow(ControlBarPlaces& barPlaces, std::int32_t toolSide, std::int32_t rowTop)
        : places(barPlaces), side(toolSide), top(rowTop)
    {
    }

    /// Sets a group at `left` and returns the left edge of what stands behind it.
    std::int32_t Group(std::int32_t left, std::initializer_list<BarTool> group) const
    {
        for (const BarTool tool : group) {
            places.tools[static_cast<std::size_t>(tool)] = {left, top, side, side};
            left += side + kToolsApart;
        }
        return left - kToolsApart + kGroupsApart;
    }

    /// Sets a group so that it ends at `right` and returns the right edge of what stands before it.
    std::int32_t GroupBefore(std::int32_t right, std::initializer_list<BarTool> group) const
    {
        const auto count = static_cast<std::int32_t>(group.size());
        const std::int32_t left = right - count * side - (count - 1) * kToolsApart;
        Group(left, group);
        return left - kGroupsApart;
    }

private:
    ControlBarPlaces& places;
    std::int32_t side;
    std::int32_t top;
};

/// Places the tools of one row, and the room that they leave.
BarPlace OneRow(ControlBarPlaces& places, std::int32_t width)
{
    const ToolRow row(places, kTool, kBarTop);
    std::int32_t left = row.Group(kBarMargin, {BarTool::PlayAll, BarTool::PlayStop});
    left = row.Group(left, {BarTool::Brush, BarTool::Eraser, BarTool::PlayTool});
    std::int32_t right = row.GroupBefore(width - kBarMargin, {BarTool::Help, BarTool::About, BarTool::Demo});
    right = row.GroupBefore(right, {BarTool::New, BarTool::Open, BarTool::Save, BarTool::Email});
    right = row.GroupBefore(right, {BarTool::SongTitleChg});
    return {left, (kTool + 2 * kBarTop - kSongLine - kTempoLine) / 2, right - left, kSongLine + kTempoLine};
}

void TwoRows(ControlBarPlaces& places, std::int32_t width, std::int32_t side)
{
    const ToolRow upper(places, side, kToolsApart);
    std::int32_t left = upper.Group(kBarMargin, {BarTool::PlayAll, BarTool::PlayStop});
    left = upper.Group(left, {BarTool::Brush, BarTool::Eraser, BarTool::PlayTool});
    const std::int32_t right = upper.GroupBefore(width - kBarMargin, {BarTool::SongTitleChg});
    places.song = {left, kToolsApart, right - left, side};

    const std::int32_t lowerTop = side + 2 * kToolsApart;
    const ToolRow lower(places, side, lowerTop);
    left = lower.Group(kBarMargin, {BarTool::New, BarTool::Open, BarTool::Save, BarTool::Email});
    left = lower.Group(left, {BarTool::Help, BarTool::About, BarTool::Demo});
    const std::int32_t tempoWidth = std::min(width - kBarMargin - left, kTempoWidth);
    places.tempo = {width - kBarMargin - tempoWidth, lowerTop + (side - kTempoLine) / 2, tempoWidth, kTempoLine};
    places.height = 2 * side + 3 * kToolsApart;
}

} // namespace

ControlBarPlaces PlaceControlBar(std::int32_t width)
{
    ControlBarPlaces places;
    const BarPlace room = OneRow(places, width);
    if (room.width >= kTempoWidth) {
        places.song = {room.left, room.top, room.width, kSongLine};
        places.songInOneLine = true;
        places.tempo = {room.left, room.top + kSongLine, kTempoWidth, kTempoLine};
        places.height = kTool + 2 * kBarTop;
        return places;
    }
    TwoRows(places, width, kTool);
    if (places.tempo.width < kTempoWidth)
        TwoRows(places, width, kSmallTool);
    return places;
}

} // namespace sprout
