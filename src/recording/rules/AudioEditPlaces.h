// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "ui/rules/Box.h"

namespace sprout {

/// The tools of the audio editor, from left to right.
enum class EditTool : std::size_t { TestPlay, VolumeUp, VolumeDown, Delete, ZoomIn, ZoomOut, Help };
inline constexpr std::size_t kEditTools = 7;

/// The positions of the audio editor's parts.
struct AudioEditPlaces {
    std::int32_t width = 0; ///< of the body
    std::int32_t height = 0;
    Box picture; ///< its sides are multiples of 4: whole device pixels at 125, 150 and 175 percent too
    Box scroll;
    Box selection;                     ///< the line that tells what is selected
    std::array<Box, kEditTools> tools; ///< squares, by `EditTool`
    std::int32_t answersLeft = 0;      ///< of the first button that closes the window
    std::int32_t answersTop = 0;
};

/// Lays out the audio editor for a screen with room for a body of this size. A narrow screen gets smaller tools.
[[nodiscard]] AudioEditPlaces PlaceAudioEditor(std::int32_t roomWidth, std::int32_t roomHeight);

} // namespace sprout
