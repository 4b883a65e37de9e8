// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "ui/rules/Box.h"

namespace sprout {

/// Twips, the unit of the settings file, per logical pixel.
inline constexpr std::int32_t kTwipsOfAPixel = 15;

/// The window's position from the settings `Size` and `Position`, on a screen of this size in pixels. Each setting is a
/// pair of twips; -1 means not set, a missing or damaged number counts as 0. A window that would be off the screen by
/// more than half its width or height is moved back completely.
[[nodiscard]] Box PlaceFromSettings(std::string_view size, std::string_view position, std::int32_t screenWidth,
                                    std::int32_t screenHeight);

/// True if the setting `WindowState` asks for a maximised window.
[[nodiscard]] bool IsMaximizedSetting(std::string_view windowState);

/// A pair of pixels in the format of the settings: twips, joined by a comma.
[[nodiscard]] std::string PairOfTwips(std::int32_t firstPx, std::int32_t secondPx);

} // namespace sprout
