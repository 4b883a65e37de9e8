// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "main_window/rules/ControlBarPlaces.h"

namespace sprout {

// The percentages of the tempo's slider. At the usual width of the slot one percent is one pixel.
inline constexpr std::int32_t kLowestTempoPercent = 50;
inline constexpr std::int32_t kHighestTempoPercent = 200;
inline constexpr std::int32_t kUsualTempoPercent = 100;

inline constexpr std::int32_t kTempoPointerWidth = 34;
inline constexpr std::int32_t kTempoSlotWidth = 184; ///< where there is room
inline constexpr std::int32_t kTempoSlotHeight = 28;
inline constexpr std::int32_t kTempoBarHeight = 40; ///< of one line
inline constexpr std::int32_t kTempoStemEnd = 4;    ///< how far the stem sticks out beyond the outer knots

/// The positions of the tempo bar's parts.
struct TempoBarPlaces {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t slotWidth = 0;
    Box percent;                 ///< of `TempoLbl`
    Box seconds;                 ///< of `SngDurLbl`
    bool hasLabelsBelow = false; ///< they have a small font then, and the percentage is at the left of its label
};

/// Fits the tempo bar into a room. In a narrow one the slot is shorter, and the labels go below it if the height
/// allows, else beside it, one above the other. percentWidth, secondsWidth: what the longest texts of the labels need.
[[nodiscard]] TempoBarPlaces PlaceTempoBar(std::int32_t roomWidth, std::int32_t roomHeight, std::int32_t percentWidth,
                                           std::int32_t secondsWidth);

} // namespace sprout
