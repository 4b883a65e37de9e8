// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

#include "core/Song.h"
#include "sound/StepCache.h"

namespace sprout {

/// What the next mix of a song needs.
struct AheadPlan {
    std::vector<StepKey> keys; ///< of the steps that are not valid, each sound once, the earliest sounding first
    bool mixable = false;      ///< with these sounds, the mix can be made without reading a file
};

/// Only looks at the song: beats that are not loaded are left out, and so are steps that would fail. keys: at most as
/// many as fit into `mostBytes` together with their sources; a plan that leaves anything out is not mixable. A song
/// whose mix is valid, or would fail, needs nothing. Throws std::bad_alloc.
[[nodiscard]] AheadPlan PlanAhead(const SongState& song, std::size_t mostBytes);

/// Memory that the mix of a song takes at most, in bytes, with the renders of its audio tracks; infinite for a tempo
/// that no mix can have.
[[nodiscard]] double MixBytes(const SongState& song);

} // namespace sprout
