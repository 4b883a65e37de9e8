// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Palette.h"

namespace sprout {

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
