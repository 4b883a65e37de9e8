// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Picture.h"

namespace sprout {

/// A picture in another size, each pixel the average of those that it stands for. width, height: above 0. Nothing stays
/// nothing.
[[nodiscard]] Picture ScaledPicture(const Picture& picture, int width, int height);

/// A picture as beats, tunes and stars have it: scaled to 32 x 32 with its proportions kept, in the middle, with white
/// beside it. One of that size is the same picture; nothing stays nothing.
[[nodiscard]] Picture FittedPicture(const Picture& picture);

} // namespace sprout
