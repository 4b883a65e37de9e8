// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "ui/rules/Box.h"

namespace sprout {

/// Beats in each row of the grid.
inline constexpr std::int32_t kBeatColumns = 12;

/// What the controls of the beat window ask for, in logical pixels.
struct BeatWindowNeeds {
    int screenHeight = 0; ///< space for the window
    int bandHeight = 0;   ///< of the window's title band
    BoxSize gridFrame;    ///< the grid with its frame and scroll bar, but without rows
    std::int32_t beats = 0;
    BoxSize choosenPic;
    BoxSize testPlayBtn;
    int columnWidth = 0;                ///< of the widest of the buttons beside the grid and Help
    std::array<int, 3> columnHeights{}; ///< of Add, Rename, Delete
    int helpHeight = 0;
    BoxSize okBtn;
    BoxSize cancelBtn;
};

/// Positions of the controls of the beat window.
struct BeatWindowPlan {
    int width = 0;
    int height = 0;
    std::int32_t gridRows = 0;
    Box grid; ///< including frame and scroll bar
    Box noteLbl;
    Box choosenPic;
    Box testPlayBtn;
    Box nmLbl;
    Box durLbl;
    std::array<Box, 3> columnButtons; ///< Add, Rename, Delete
    Box okBtn;
    Box cancelBtn;
    Box helpBtn;
};

/// The grid with as many rows as the beats need and the screen has room for, at least 8. In a column beside it: the
/// chosen beat at the top, the buttons at the lower edge. Below: OK, Cancel, Help.
[[nodiscard]] BeatWindowPlan PlanBeatWindow(const BeatWindowNeeds& needs);

} // namespace sprout
