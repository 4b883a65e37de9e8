// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/Palette.h"

namespace sprout {

QColor ColourOf(std::int32_t colour)
{
    constexpr int byteBits = 8;
    return {colour & 0xFF, colour >> byteBits & 0xFF, colour >> 2 * byteBits & 0xFF};
}

QPalette ProgramPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, kPaper);
    palette.setColor(QPalette::WindowText, kBark);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, kSand);
    palette.setColor(QPalette::Text, kBark);
    palette.setColor(QPalette::Button, kSand);
    palette.setColor(QPalette::ButtonText, kBark);
    palette.setColor(QPalette::Highlight, kLink);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, kStone);
    palette.setColor(QPalette::ToolTipBase, kPaper);
    palette.setColor(QPalette::ToolTipText, kBark);
    palette.setColor(QPalette::Link, kLink);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, kStone);
    return palette;
}

} // namespace sprout
