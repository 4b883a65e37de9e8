// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "core/Song.h"

namespace sprout {

/// "100%".
[[nodiscard]] std::string TempoLabel(std::int32_t percent);

/// The whole grid's duration, "240 sec". A tempo of 0 has none and gives "0 sec".
[[nodiscard]] std::string DurationLabel(std::int32_t tempo);

/// Takes the tempo of a percentage. Nothing happens where the song has it already; else all renders are stale and the
/// shared song is changed. Returns whether it was taken.
bool SetTempoPercent(std::int32_t percent);

} // namespace sprout
