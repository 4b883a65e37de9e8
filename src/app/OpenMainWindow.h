// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

class MainFrm;

/// The part of the program's start that needs the main window, in its order: shows the window, fills the table of
/// tunes, starts the sound and, on the first starts, opens the sample song. The window is drawn when the desktop has
/// put it on the screen. Songs that the last run could only keep are told as soon as events are handled.
void OpenMainWindow(MainFrm& window);

} // namespace sprout
