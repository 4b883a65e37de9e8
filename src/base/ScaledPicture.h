// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Picture.h"

namespace sprout {

/// A picture in another size; each pixel is the average of those that it replaces. width, height: above 0. An empty
/// picture stays empty.
[[nodiscard]] Picture ScaledPicture(const Picture& picture, int width, int height);

/// A picture in the size for beats, tunes and stars: scaled to 32 x 32 with its proportions kept, centred on white. A
/// picture of that size is returned as it is; an empty one stays empty.
[[nodiscard]] Picture FittedPicture(const Picture& picture);

} // namespace sprout
