// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

class PictureGridPic;

/// Shows every grid of pictures to screen readers as a list, whose items have the names of the pictures. Called more
/// than once, it does nothing more.
void InstallPictureGridAccessible();

/// Lets screen readers name the chosen picture of a grid that has the focus.
void TellChosenPicture(PictureGridPic& grid);

} // namespace sprout
