// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Draws the four pictures that the program itself holds, each a picture of its own: that of a track without a tune and
/// the other half of its blinking, that of a missing picture file, and that of a new tune.
void MakeProgramPictures();

} // namespace sprout
