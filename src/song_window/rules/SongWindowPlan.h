// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "song_window/rules/SongChoice.h"
#include "ui/rules/Box.h"

namespace sprout {

/// Side of the picture that stands for the window's mode.
inline constexpr int kModePicSide = 30;

/// What the controls of the song window ask for, in logical pixels.
struct SongWindowNeeds {
    int bandHeight = 0;                   ///< of the window's title band
    int blankWidth = 0;                   ///< of a blank in the title of the name box
    int nameLabelWidth = 0;               ///< of `SongNmLbl`
    std::array<BoxSize, 4> columnButtons; ///< the last one is Help
    std::array<BoxSize, 2> soundFileButtons;
    BoxSize okBtn;
    BoxSize cancelBtn;
};

/// Positions of the controls of the song window.
struct SongWindowPlan {
    int width = 0;
    int height = 0;
    Box modePic;
    Box listTitleLbl;
    Box list;
    Box textTitleLbl; ///< this and the next two only in a mode with a name box
    Box songNmLbl;
    Box songNameTxt;
    std::array<Box, 4> columnButtons;
    std::array<Box, 2> soundFileButtons;
    Box okBtn;
    Box cancelBtn;
};

/// The list with a column of buttons beside it, Help at its lower edge; below it the name box, if the mode has one, and
/// a row with OK and Cancel on the left and the sound files on the right.
[[nodiscard]] SongWindowPlan PlanSongWindow(const SongSelLayout& layout, const SongWindowNeeds& needs);

} // namespace sprout
