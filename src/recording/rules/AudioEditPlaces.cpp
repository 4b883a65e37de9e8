// SPDX-License-Identifier: GPL-3.0-or-later
#include "recording/rules/AudioEditPlaces.h"

#include <algorithm>

namespace sprout {

namespace {

constexpr std::int32_t kEditMargin = 16;
constexpr std::int32_t kWavePicTop = 14;
constexpr std::int32_t kPlaceUnit = 4;
constexpr std::int32_t kLeastWavePicWidth = 320;
constexpr std::int32_t kMostWavePicWidth = 960;
constexpr std::int32_t kLeastWavePicHeight = 64;
constexpr std::int32_t kMostWavePicHeight = 300;
constexpr std::int32_t kHScrollGap = 8;
constexpr std::int32_t kHScrollHeight = 18;
constexpr std::int32_t kSelectLblGap = 4;
constexpr std::int32_t kSelectLblHeight = 24;
constexpr std::int32_t kEditRowGap = 8;
constexpr std::int32_t kToolSide = 56;
constexpr std::int32_t kSmallToolSide = 40;
constexpr std::int32_t kLeastWidthOfTools = 560;
constexpr std::int32_t kToolGap = 6;
constexpr std::int32_t kGroupGap = 20;
constexpr std::int32_t kAnswerHeight = 44;

/// Everything above and below the picture.
constexpr std::int32_t HeightAround(std::int32_t toolSide)
{
    return kWavePicTop + kHScrollGap + kHScrollHeight + kSelectLblGap + kSelectLblHeight + toolSide + kEditRowGap +
           kAnswerHeight + kEditMargin;
}

std::int32_t PictureSide(std::int32_t room, std::int32_t least, std::int32_t most)
{
    return std::clamp(room, least, most) / kPlaceUnit * kPlaceUnit;
}

bool EndsAGroup(EditTool tool)
{
    return tool == EditTool::TestPlay || tool == EditTool::Delete;
}

/// right: the edge at which the help button stands.
std::array<Box, kEditTools> PlaceTools(std::int32_t top, std::int32_t side, std::int32_t right)
{
    std::array<Box, kEditTools> places;
    std::int32_t left = kEditMargin;
    const std::int32_t groupGap = side == kToolSide ? kGroupGap : kToolGap;
    for (std::size_t tool = 0; tool < kEditTools; ++tool) {
        places[tool] = {left, top, side, side};
        left += side + (EndsAGroup(static_cast<EditTool>(tool)) ? groupGap : kToolGap);
    }
    places[static_cast<std::size_t>(EditTool::Help)].left = right - side;
    return places;
}

} // namespace

AudioEditPlaces PlaceAudioEditor(std::int32_t roomWidth, std::int32_t roomHeight)
{
    const std::int32_t toolSide = roomWidth < kLeastWidthOfTools ? kSmallToolSide : kToolSide;
    const std::int32_t width = PictureSide(roomWidth - 4 * kEditMargin, kLeastWavePicWidth, kMostWavePicWidth);
    const std::int32_t height =
        PictureSide(roomHeight - HeightAround(toolSide) - kEditMargin, kLeastWavePicHeight, kMostWavePicHeight);
    const std::int32_t scrollTop = kWavePicTop + height + kHScrollGap;
    const std::int32_t selectionTop = scrollTop + kHScrollHeight + kSelectLblGap;
    const std::int32_t toolsTop = selectionTop + kSelectLblHeight;
    AudioEditPlaces places;
    places.width = width + 2 * kEditMargin;
    places.height = height + HeightAround(toolSide);
    places.picture = {kEditMargin, kWavePicTop, width, height};
    places.scroll = {kEditMargin, scrollTop, width, kHScrollHeight};
    places.selection = {kEditMargin, selectionTop, width, kSelectLblHeight};
    places.tools = PlaceTools(toolsTop, toolSide, kEditMargin + width);
    places.answersLeft = kEditMargin;
    places.answersTop = toolsTop + toolSide + kEditRowGap;
    return places;
}

} // namespace sprout
