// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

namespace sprout {

/// A sound that no instrument makes, computed at 44,100 Hz, full scale about 1. key: MIDI key, if the sound has a
/// pitch. Throws `RunTimeError` for an unknown name.
[[nodiscard]] std::vector<double> OwnSound(std::string_view name, int key, double seconds);

} // namespace sprout
