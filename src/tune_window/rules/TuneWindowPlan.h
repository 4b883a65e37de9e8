// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>

namespace sprout {

/// Tunes in a row of the grid.
inline constexpr std::int32_t kTuneColumns = 18;

/// A place in a window, in logical pixels.
struct PlanBox {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] int Right() const { return x + width; }
    [[nodiscard]] int Bottom() const { return y + height; }
    friend bool operator==(const PlanBox&, const PlanBox&) = default;
};

/// What the tune window has to find room for, in logical pixels.
struct TuneWindowNeeds {
    int screenWidth = 0; ///< room for the window
    int screenHeight = 0;
    int bandHeight = 0;      ///< of the window's title
    int gridWidth = 0;       ///< with frame and scroll bar
    int gridFrameHeight = 0; ///< that is no row
    int editorHeight = 0;
    std::int32_t tunes = 0;
};

/// Where the parts of the tune window stand.
///
/// A wide screen has the chosen tune and the buttons beside the grid, a narrow one between grid and editor.
struct TuneWindowPlan {
    int width = 0;
    int height = 0;
    std::int32_t gridRows = 0;
    PlanBox grid; ///< with frame and scroll bar
    PlanBox tunePic;
    PlanBox tuneNameLbl;
    PlanBox createdByLbl;
    std::array<PlanBox, 7> tools; ///< round buttons
    PlanBox okBtn;
    PlanBox cancelBtn;
    PlanBox editor;
};

/// The grid gets a row more than the tunes fill, so that nothing is to scroll, as far as the screen has room; at least
/// two.
[[nodiscard]] TuneWindowPlan PlanTuneWindow(const TuneWindowNeeds& needs);

} // namespace sprout
