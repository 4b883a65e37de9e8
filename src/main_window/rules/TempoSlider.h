// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "core/Song.h"

namespace sprout {

/// "100%".
[[nodiscard]] std::string TempoLabel(std::int32_t percent);

/// The whole grid's duration, e.g. "240 sec". A tempo of 0 gives "0 sec".
[[nodiscard]] std::string DurationLabel(std::int32_t tempo);

/// Sets the song's tempo to a percentage. If the tempo changes, all renders become stale and the shared song is marked
/// as changed. Returns whether it changed.
bool SetTempoPercent(std::int32_t percent);

} // namespace sprout
