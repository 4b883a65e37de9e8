// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

class MainFrm;

/// The part of the program's start that needs the main window, in this order: shows the window, fills the table of
/// tunes, starts the sound and, on the first starts, opens the sample song. The window is drawn once the desktop has
/// put it on the screen. A message about songs that the last run could only keep appears as soon as events are handled.
void OpenMainWindow(MainFrm& window);

} // namespace sprout
