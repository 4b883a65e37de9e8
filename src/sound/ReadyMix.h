// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Song.h"

namespace sprout {

/// Everything of a song that its mix depends on, as a value of its own; sounds are shared.
[[nodiscard]] SongState CopyForMix(const SongState& song);

/// A mix that was made before a play asked for it, with all that it leaves in a song.
class ReadyMix {
public:
    /// before: a `CopyForMix`. after: the same after its mix.
    ReadyMix(SongState before, SongState after);

    /// Whether the mix of `song` would give just this. Compares values, so it does not matter who changed what, and
    /// how: a song that was changed and changed back fits. Steps and audio tracks that were rendered meanwhile, with
    /// the same sound, fit too.
    [[nodiscard]] bool FitsTo(const SongState& song) const;

    /// Leaves a song that fits as its mix would have left it. Only once.
    void HandTo(SongState& song);

private:
    SongState before;
    SongState after;
};

} // namespace sprout
