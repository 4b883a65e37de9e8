// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "service/Stretch.h"

namespace sprout {

/// The program's own engine for pitch and duration. It has no state, so all threads can share one.
[[nodiscard]] std::unique_ptr<Stretch> MakeStretch();

} // namespace sprout
