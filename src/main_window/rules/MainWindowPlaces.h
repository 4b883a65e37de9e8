// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "main_window/rules/WindowPlace.h"

namespace sprout {

/// Width of the main window's own frame.
inline constexpr std::int32_t kWindowFrame = 6;
/// Height of the title band.
inline constexpr std::int32_t kTitleBandHeight = 40;
/// Height of the status frame.
inline constexpr std::int32_t kStatusBarHeight = 32;

/// The positions of the main window's parts, in logical pixels from its top left.
struct MainWindowPlaces {
    Box titleBand;
    Box controlBar;
    Box canvas;
    Box welcome; ///< a strip between canvas and status frame; empty: hidden
    Box statusBar;
    Box leftCorner;
    Box rightCorner;
    /// Status frame and corners are visible. The lowest window gives their room to the tracks.
    bool hasStatus = true;
};

/// The width that the control bar gets in a window of this width.
[[nodiscard]] std::int32_t ControlBarWidth(std::int32_t windowWidth);

/// Whether the window shows the welcome card.
enum class WelcomeStrip { Hidden, Shown };

/// Lays out the main window. barHeight: of the control bar at its width. The canvas cedes the room of the welcome card
/// at its lower edge, as long as it shows a row.
[[nodiscard]] MainWindowPlaces PlaceMainWindow(std::int32_t width, std::int32_t height, std::int32_t barHeight,
                                               WelcomeStrip welcome = WelcomeStrip::Hidden);

} // namespace sprout
