// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

#include <span>

#include "ui/words/QtText.h"

class QWidget;

namespace sprout {

/// A page of the help book.
struct HelpPage {
    const char* file; ///< without its folder and ending
    LaterWords title;
    const char* picture; ///< an artwork
};

/// The page about a window, or about a part of it.
struct HelpOfWindow {
    const char* window; ///< its object name
    const char* file;
};

/// All pages, in the order of the list.
[[nodiscard]] std::span<const HelpPage> HelpPages();
[[nodiscard]] std::span<const HelpOfWindow> HelpOfWindows();

[[nodiscard]] QUrl PageUrl(const HelpPage& page);

/// The number of the page about `widget`: its own, or that of the nearest part around it. -1 if there is none.
[[nodiscard]] int PageAbout(const QWidget* widget);

} // namespace sprout
