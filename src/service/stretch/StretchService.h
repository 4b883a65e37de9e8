// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "service/Stretch.h"

#include <memory>

namespace sprout {

/// The program's own engine for pitch and duration; keeps no state, so one serves every thread.
[[nodiscard]] std::unique_ptr<Stretch> MakeStretch();

} // namespace sprout
