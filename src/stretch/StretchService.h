// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "service/Stretch.h"

namespace sprout {

/// The program's own engine for pitch and duration; keeps no state, so one serves every thread.
[[nodiscard]] std::unique_ptr<Stretch> MakeStretch();

} // namespace sprout
