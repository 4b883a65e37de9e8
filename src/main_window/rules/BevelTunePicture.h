// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Picture.h"

namespace sprout {

/// A picture with a raised edge: its two outer lines are lightened at the top and left and darkened at the bottom and
/// right. Where lines cross, a pixel is shaded by each. A picture of any size; nothing stays nothing.
[[nodiscard]] Picture BevelTunePicture(const Picture& picture);

} // namespace sprout
