// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/TempoBarPlaces.h"

#include <algorithm>

namespace sprout {

namespace {

constexpr std::int32_t kLabelGap = 8;
constexpr std::int32_t kLabelBelowHeight = 16;
constexpr std::int32_t kHeightWithLabelsBelow = 53; // the labels cover the pointer's focus frame, but not its picture
constexpr std::int32_t kShortestSlot = 60;

TempoBarPlaces PlaceInLine(std::int32_t percentWidth, std::int32_t secondsWidth)
{
    const std::int32_t percentLeft = kTempoSlotWidth + kLabelGap;
    const std::int32_t secondsLeft = percentLeft + percentWidth + kLabelGap;
    return {secondsLeft + secondsWidth,
            kTempoBarHeight,
            kTempoSlotWidth,
            {percentLeft, 0, percentWidth, kTempoBarHeight},
            {secondsLeft, 0, secondsWidth, kTempoBarHeight},
            false};
}

TempoBarPlaces PlaceLabelsBelow(std::int32_t roomWidth, std::int32_t percentWidth, std::int32_t secondsWidth)
{
    const std::int32_t slotWidth = std::min(roomWidth, kTempoSlotWidth);
    // The labels are under the ends of the stem.
    const std::int32_t left = kTempoPointerWidth / 2 - kTempoStemEnd;
    const std::int32_t labelsWidth = slotWidth - 2 * left;
    const std::int32_t percentShare = labelsWidth * percentWidth / (percentWidth + secondsWidth);
    const std::int32_t top = kHeightWithLabelsBelow - kLabelBelowHeight;
    return {slotWidth,
            kHeightWithLabelsBelow,
            slotWidth,
            {left, top, percentShare, kLabelBelowHeight},
            {left + percentShare, top, labelsWidth - percentShare, kLabelBelowHeight},
            true};
}

TempoBarPlaces PlaceLabelsStacked(std::int32_t roomWidth, std::int32_t secondsWidth)
{
    const std::int32_t slotWidth = std::clamp(roomWidth - kLabelGap - secondsWidth, kShortestSlot, kTempoSlotWidth);
    const std::int32_t left = slotWidth + kLabelGap;
    const std::int32_t half = kTempoBarHeight / 2;
    return {left + secondsWidth,
            kTempoBarHeight,
            slotWidth,
            {left, 0, secondsWidth, half},
            {left, half, secondsWidth, half},
            false};
}

} // namespace

TempoBarPlaces PlaceTempoBar(std::int32_t roomWidth, std::int32_t roomHeight, std::int32_t percentWidth,
                             std::int32_t secondsWidth)
{
    if (roomHeight >= kHeightWithLabelsBelow)
        return PlaceLabelsBelow(roomWidth, percentWidth, secondsWidth);
    const TempoBarPlaces line = PlaceInLine(percentWidth, secondsWidth);
    return roomWidth >= line.width ? line : PlaceLabelsStacked(roomWidth, secondsWidth);
}

} // namespace sprout
