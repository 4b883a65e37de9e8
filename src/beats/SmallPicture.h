// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Picture.h"

namespace sprout {

/// A picture for small display: one with a side of more than 128 pixels is averaged down to 128 x 128, any other is
/// returned as it is. A folder of photographs then costs no more memory than one of 32 x 32.
[[nodiscard]] Picture SmallPicture(const Picture& picture);

} // namespace sprout
