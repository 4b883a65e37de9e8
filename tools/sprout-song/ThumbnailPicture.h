// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

#include "core/Song.h"

namespace sprout {

/// The bytes of a .png that shows a song's tracks as they are painted, in the colours of the program, on a sheet of its
/// paper with round corners. paint: tracks with `TrackType` and `Painted`; what else they hold is not looked at. side:
/// of the square picture in pixels, at least `kThumbnailSmallestSide`. Needs no display. Throws `RunTimeError` or
/// `std::bad_alloc`.
[[nodiscard]] std::vector<std::byte> DrawThumbnail(const SongState& paint, int side);

} // namespace sprout
