// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

class PictureGridPic;

/// Shows every picture grid to screen readers as a list whose items are named after the pictures. Further calls do
/// nothing.
void InstallPictureGridAccessible();

/// Makes screen readers announce the chosen picture of a grid that has the focus.
void TellChosenPicture(PictureGridPic& grid);

} // namespace sprout
