// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "base/Words.h"

namespace sprout {

/// "100%".
[[nodiscard]] Words TempoLabel(std::int32_t percent);

/// The whole grid's duration, e.g. "240 sec". A tempo of 0 gives "0 sec".
[[nodiscard]] Words DurationLabel(std::int32_t tempo);

} // namespace sprout
