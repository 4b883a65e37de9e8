// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>

#include "core/Song.h"
#include "sound/StepCache.h"

namespace sprout {

/// What happens to a beat whose sound is not in memory yet.
enum class UnloadedBeats {
    AreRead,   ///< from its file, with the messages of that
    AreRefused ///< the render ends with `WorkStopped`
};

/// The song that is rendered and what its render may use. Both must outlive the render.
struct RenderSetting {
    /// As of `ParallelFor`: called on the thread that renders; may throw to end the work.
    using Progress = std::function<void(std::size_t done, std::size_t total)>;

    SongState& song;
    StepCache& cache;
    UnloadedBeats beats = UnloadedBeats::AreRead;
    Progress stepProgress = {}; ///< of the steps
    Progress mixProgress = {};  ///< of the pieces of a mix
};

/// The setting of what is rendered because somebody waits for it: the shared song and cache, with the progress of the
/// steps on the screen. Interrupts what is rendered ahead. Interface thread only.
[[nodiscard]] RenderSetting SharedSetting();

} // namespace sprout
