// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace sprout {

/// Draws the program's four built-in pictures, each a separate picture: a track without a tune, its other blink phase,
/// a missing picture file, and a new tune.
void MakeProgramPictures();

} // namespace sprout
