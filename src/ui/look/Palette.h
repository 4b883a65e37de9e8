// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

#include <cstdint>

namespace sprout {

// The colours of the program's own look. Text is bark on paper, sand and sun, and paper or white on the others.
inline constexpr QColor kPaper{0xFF, 0xF8, 0xE7};
inline constexpr QColor kSand{0xF1, 0xE3, 0xC4};
inline constexpr QColor kBark{0x4A, 0x2F, 0x22};
inline constexpr QColor kLeaf{0x3C, 0x9D, 0x4B};
inline constexpr QColor kDeepLeaf{0x1F, 0x6B, 0x34};
inline constexpr QColor kLink{0x1F, 0x6F, 0xA8};
inline constexpr QColor kSun{0xFF, 0xC8, 0x3D};
inline constexpr QColor kCoral{0xC2, 0x3B, 0x27};
inline constexpr QColor kBerry{0xA8, 0x43, 0x9A};
inline constexpr QColor kStone{0x6B, 0x65, 0x5C};

/// Converts a colour of the song or the settings, 0x00BBGGRR.
[[nodiscard]] QColor ColourOf(std::int32_t colour);

/// The colours above, mapped to the roles of Qt's own widgets.
[[nodiscard]] QPalette ProgramPalette();

} // namespace sprout
