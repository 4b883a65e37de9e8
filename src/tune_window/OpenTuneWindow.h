// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Song.h"

namespace sprout {

/// Lets the user choose and edit the tune of a track in the tune window. tune: of a track of the shared song; takes
/// the chosen tune when the window is left with OK. newFlag: whether the window shows no choice at first; on return,
/// whether it was left with OK. Returns whether the tune or its picture was changed.
[[nodiscard]] bool OpenTuneWindow(Tune& tune, bool& newFlag);

/// Fills the table of tunes from `UserTunes` if it is empty, so that the window opens at once; otherwise finds the
/// chosen tune again. Makes no window.
void LoadTuneFiles();

/// Lets the tune window, if it is open, show the tune under edit.
void UpdateThisTune();

} // namespace sprout
