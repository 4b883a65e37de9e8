// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace sprout {

class MainFrm;

/// The part of the program's start that needs the main window, in this order: shows the window, fills the table of
/// tunes, starts the sound and, on the first starts, opens the sample song. The very first start also shows the welcome
/// card. The window is drawn once the desktop has put it on the screen.
///
/// As soon as events are handled, `song` is opened, unless it is empty. Then come the messages about folders in which
/// nothing can be kept and about songs that the last run could only keep, and the question whether the user wants what
/// came into the library with a new version.
void OpenMainWindow(MainFrm& window, const std::filesystem::path& song = {});

} // namespace sprout
