// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/Picture.h"

namespace sprout {

/// A picture for small display: one with a side of more than 128 pixels is averaged down to 128 x 128, any other is
/// returned as it is. So even a folder of photographs costs little memory: 64 KB a picture.
[[nodiscard]] Picture SmallPicture(const Picture& picture);

} // namespace sprout
