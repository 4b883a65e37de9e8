// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Picture.h"

namespace sprout {

/// A picture with a raised edge: its two outer lines are lightened at the top and left and darkened at the bottom and
/// right. Where lines cross, both shade the pixel. Takes a picture of any size; an empty one stays empty.
[[nodiscard]] Picture BevelTunePicture(const Picture& picture);

} // namespace sprout
