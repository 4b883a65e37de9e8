// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Song.h"

namespace sprout {

/// Lets the user choose and edit a track's tune in the tune window. tune: of a track of the shared song; gets the
/// chosen tune if the user leaves the window with OK. newFlag: whether the window shows no choice at first; on return,
/// whether the user left it with OK. Returns whether the tune or its picture was changed.
[[nodiscard]] bool OpenTuneWindow(Tune& tune, bool& newFlag);

/// Fills the tune table from `UserTunes` if it is empty, so that the window opens immediately; otherwise finds the
/// chosen tune again. Creates no window.
void LoadTuneFiles();

/// If the tune window is open, makes it show the tune being edited.
void UpdateThisTune();

} // namespace sprout
