// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Makes the pictures of windows in the help, in a process of its own: arguments --help-pictures, SCRIPT, SPROUT and
/// PICTURES, the folder for them. Returns the exit status; throws `RunTimeError`.
[[nodiscard]] int MakeHelpPictures(int argc, char** argv);

/// Makes them here: arguments --help-here, SCRIPT, SPROUT and a folder, which gets them in "made".
[[nodiscard]] int MakeHelpPicturesHere(int argc, char** argv);

} // namespace sprout
