// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <optional>
#include <thread>

#include "core/Song.h"
#include "sound/AheadThreads.h"
#include "sound/ReadyMix.h"
#include "sound/StepCache.h"

namespace sprout {

/// The mix of a song that a thread makes while the interface goes on; it works on copies. Belongs to the interface
/// thread and holds all sounds that it uses until it is destroyed there, like `AheadSteps`.
class AheadMix {
public:
    /// sounds: those of the steps that are not valid. threads: outlives this.
    AheadMix(const SongState& song, StepCache sounds, const AheadThreads& threads);
    AheadMix(const AheadMix&) = delete;
    AheadMix& operator=(const AheadMix&) = delete;
    /// Waits until the piece in work is done: a few ms.
    ~AheadMix();

    /// Ends the work after the piece in work. Does not wait.
    void GiveUp() { isGivenUp.store(true); }

    [[nodiscard]] bool IsFinished() const { return !isRunning.load(); }

    /// The mix of finished work, once; nothing if it failed or was given up.
    [[nodiscard]] std::optional<ReadyMix> Take();

private:
    void Work();
    void Mix();

    const AheadThreads& calls;
    SongState before;
    SongState after;
    StepCache stepSounds;
    bool isMade = false;
    std::atomic<bool> isGivenUp = false;
    std::atomic<bool> isRunning = true;
    std::thread worker;
};

} // namespace sprout
