// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/ControlBarPlaces.h"

#include <algorithm>
#include <array>
#include <span>

namespace sprout {

namespace {

constexpr std::int32_t kTool = 56;
constexpr std::int32_t kSmallTool = 40;
constexpr std::int32_t kToolsApart = 6;
constexpr std::int32_t kGroupsApart = 12;
constexpr std::int32_t kBarMargin = 8;
constexpr std::int32_t kBarTop = 8; ///< of the tools in the single row
constexpr std::int32_t kSongLine = 28;
constexpr std::int32_t kTempoLine = 36;
constexpr std::int32_t kTempoWidth = 312; ///< what the tempo bar needs
constexpr std::int32_t kTightTempoWidth = 126;
constexpr std::int32_t kTightTempoHeight = 53; ///< with its labels below the slot
constexpr std::int32_t kTightBarHeight = 80;
constexpr std::int32_t kBelowTightTempo = 2;
constexpr std::int32_t kSongPartsApart = 16;
constexpr std::int32_t kLeastTitle = 120;
constexpr std::int32_t kLeastAuthor = 60;

constexpr std::array kPlayTools{BarTool::PlayAll, BarTool::PlayStop};
constexpr std::array kPaintTools{BarTool::Brush, BarTool::Eraser, BarTool::PlayTool};
constexpr std::array kSongTools{BarTool::New, BarTool::Open, BarTool::Save, BarTool::Email};
constexpr std::array kTitleTool{BarTool::SongTitleChg};
constexpr std::array kHelpTools{BarTool::Help, BarTool::About, BarTool::Demo};

using ToolGroup = std::span<const BarTool>;

ToolGroup SongTools(EmailTool email)
{
    return ToolGroup(kSongTools).first(kSongTools.size() - (email == EmailTool::Hidden ? 1 : 0));
}

/// Places tools side by side, starting or ending at an edge.
class ToolRow {
public:
    ToolRow(ControlBarPlaces& barPlaces, std::int32_t toolSide, std::int32_t rowTop)
        : places(barPlaces), side(toolSide), top(rowTop)
    {
    }

    /// Places a group at `left` and returns the left edge of the next group.
    std::int32_t Group(std::int32_t left, ToolGroup group) const
    {
        for (const BarTool tool : group) {
            places.tools[static_cast<std::size_t>(tool)] = {left, top, side, side};
            left += side + kToolsApart;
        }
        return left - kToolsApart + kGroupsApart;
    }

    /// Places a group that ends at `right` and returns the right edge of the group before it.
    std::int32_t GroupBefore(std::int32_t right, ToolGroup group) const
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

/// The room between the tools of a single row.
Box RoomInOneRow(ControlBarPlaces& places, std::int32_t width, std::int32_t top, EmailTool email)
{
    const ToolRow row(places, kTool, top);
    std::int32_t left = row.Group(kBarMargin, kPlayTools);
    left = row.Group(left, kPaintTools);
    std::int32_t right = row.GroupBefore(width - kBarMargin, kHelpTools);
    right = row.GroupBefore(right, SongTools(email));
    right = row.GroupBefore(right, kTitleTool);
    return {left, top, right - left, kTool};
}

void OneRow(ControlBarPlaces& places, const Box& room)
{
    const std::int32_t top = (kTool + 2 * kBarTop - kSongLine - kTempoLine) / 2;
    places.songInOneLine = true;
    places.song = {room.left, top, room.width, kSongLine};
    places.tempo = {room.left, top + kSongLine, kTempoWidth, kTempoLine};
    places.height = kTool + 2 * kBarTop;
}

/// The row is a little higher, because the tempo's labels are below its slot.
void OneTightRow(ControlBarPlaces& places, std::int32_t width, EmailTool email)
{
    const Box room = RoomInOneRow(places, width, (kTightBarHeight - kTool) / 2, email);
    places.songInOneLine = true;
    places.song = {room.left, 0, room.width, kSongLine};
    places.tempo = {room.left, kTightBarHeight - kBelowTightTempo - kTightTempoHeight, room.width, kTightTempoHeight};
    places.height = kTightBarHeight;
}

void TwoRows(ControlBarPlaces& places, std::int32_t width, std::int32_t side, EmailTool email)
{
    const ToolRow upper(places, side, kToolsApart);
    std::int32_t left = upper.Group(kBarMargin, kPlayTools);
    left = upper.Group(left, kPaintTools);
    const std::int32_t right = upper.GroupBefore(width - kBarMargin, kTitleTool);
    places.song = {left, kToolsApart, right - left, side};

    const std::int32_t lowerTop = side + 2 * kToolsApart;
    const ToolRow lower(places, side, lowerTop);
    left = lower.Group(kBarMargin, SongTools(email));
    left = lower.Group(left, kHelpTools);
    const std::int32_t tempoWidth = std::min(width - kBarMargin - left, kTempoWidth);
    const bool isTight = tempoWidth < kTempoWidth && side >= kTightTempoHeight;
    const std::int32_t tempoHeight = isTight ? kTightTempoHeight : kTempoLine;
    places.tempo = {width - kBarMargin - tempoWidth, lowerTop + (side - tempoHeight) / 2, tempoWidth, tempoHeight};
    places.height = 2 * side + 3 * kToolsApart;
}

} // namespace

ControlBarPlaces PlaceControlBar(std::int32_t width, EmailTool email)
{
    ControlBarPlaces places;
    const Box room = RoomInOneRow(places, width, kBarTop, email);
    if (room.width >= kTempoWidth)
        OneRow(places, room);
    else if (room.width >= kTightTempoWidth)
        OneTightRow(places, width, email);
    else
        TwoRows(places, width, kTool, email);
    if (places.tempo.width < kTightTempoWidth)
        TwoRows(places, width, kSmallTool, email);
    return places;
}

SongLine FitSongLine(const SongLineNeeds& needs, std::int32_t room)
{
    SongLine line;
    const std::int32_t leastTitle = std::min(needs.title, kLeastTitle);
    const std::int32_t least = leastTitle + kSongPartsApart + std::min(needs.author, kLeastAuthor);
    line.hasCaption = needs.titleCaption + needs.authorCaption + least <= room;
    line.hasAuthorCaption = needs.authorCaption + least <= room;
    line.titleLeft = line.hasCaption ? needs.titleCaption : 0;
    const std::int32_t authorCaption = line.hasAuthorCaption ? needs.authorCaption : 0;
    const std::int32_t names = std::max(room - line.titleLeft - kSongPartsApart - authorCaption, 0);
    const std::int32_t keptForAuthor = std::min({needs.author, kLeastAuthor, names / 2});
    line.titleWidth = std::min({needs.title, std::max(leastTitle, names - needs.author), names - keptForAuthor});
    line.authorCaptionLeft = line.titleLeft + line.titleWidth + kSongPartsApart;
    line.authorLeft = line.authorCaptionLeft + authorCaption;
    line.authorWidth = names - line.titleWidth;
    return line;
}

} // namespace sprout
