// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QFont>

namespace sprout {

/// 13 px, for hints and lists.
[[nodiscard]] QFont HintFont();
/// 15 px, for labels.
[[nodiscard]] QFont LabelFont();
/// 15 px bold, for title bands and the words of buttons.
[[nodiscard]] QFont ButtonFont();
/// 20 px bold, for the song's title.
[[nodiscard]] QFont TitleFont();

/// Gives the application the program's font, colours and the look of Qt's own widgets. Call it once, before the first
/// window.
void ApplyLook(QApplication& application);

} // namespace sprout
