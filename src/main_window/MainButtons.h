// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "main_window/rules/ControlBarPlaces.h"
#include "main_window/rules/Stroke.h"
#include "ui/widgets/ButtonScheme.h"

namespace sprout {

/// What a click on each of the main window's buttons runs.
struct MainButtonClicks {
    std::function<void()> PlayAllBtn, PlayStopBtn, BrushBtn, EraserBtn, PlayToolBtn, NewBtn, OpenBtn, SaveBtn,
        SongTitleChgBtn, EmailBtn, HelpBtn, AboutBtn, DemoBtn, CloseImgBtn, MaximizeImgBtn, MinimizeImgBtn,
        RestoreImgBtn;
};

/// The buttons of the main window's bands, in table order, with their hints and shortcuts. A click clears the hint
/// first.
class MainButtons {
public:
    /// buttons: the window's scheme. Adds the buttons and draws the pictures for the first paint of the window while
    /// the rest of it is made.
    MainButtons(QWidget& window, ButtonScheme& buttons, MainButtonClicks clicks);

    [[nodiscard]] ImageButton& Button(std::string_view name) const { return scheme.Button(name); }
    [[nodiscard]] ImageButton& Button(BarTool tool) const;

    /// Ctrl+N, Ctrl+O, Ctrl+S and F1.
    void MakeShortcuts(QWidget& window) const;

    /// Shows which tool is chosen.
    void ShowTool(Tool tool) const;
    /// Shows the button for the other of the two states.
    void ShowMaximized(bool maximized) const;

private:
    void DrawPicturesAhead(qreal pixelRatio) const;

    ButtonScheme& scheme;
};

} // namespace sprout
