// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

#include "ui/rules/Box.h"

namespace sprout {

/// Tunes in each row of the grid.
inline constexpr std::int32_t kTuneColumns = 18;

/// What the tune window needs space for, in logical pixels.
struct TuneWindowNeeds {
    int screenWidth = 0; ///< space for the window
    int screenHeight = 0;
    int bandHeight = 0;      ///< of the window's title band
    int gridWidth = 0;       ///< including frame and scroll bar
    int gridFrameHeight = 0; ///< the part that is not rows
    int editorHeight = 0;
    std::int32_t tunes = 0;
};

/// Positions of the parts of the tune window.
///
/// On a wide screen the chosen tune and the buttons are beside the grid, on a narrow one between grid and editor.
struct TuneWindowPlan {
    int width = 0;
    int height = 0;
    std::int32_t gridRows = 0;
    Box grid; ///< including frame and scroll bar
    Box tunePic;
    Box tuneNameLbl;
    Box createdByLbl;
    std::array<Box, 7> tools; ///< round buttons
    Box okBtn;
    Box cancelBtn;
    Box editor;
};

/// The grid gets one row more than the tunes fill, which avoids scrolling, if the screen has room; at least two rows.
[[nodiscard]] TuneWindowPlan PlanTuneWindow(const TuneWindowNeeds& needs);

} // namespace sprout
