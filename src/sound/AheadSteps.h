// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

#include "sound/AheadThreads.h"
#include "sound/StepCache.h"

namespace sprout {

/// Steps that threads render, one after the other, while the interface goes on. No lock: each step has its own place,
/// and an atomic mark says that it is filled.
///
/// Belongs to the interface thread. It holds the sources of its keys until it is destroyed there, which comes after the
/// threads' last look at them: a source that seems to be nobody else's is so.
class AheadSteps {
public:
    struct Result {
        StepKey key;
        WaveData sound; ///< length 0 if it failed
    };

    /// Starts at most `most` threads; if none can be started, it is finished without a result. threads: outlives this.
    AheadSteps(std::vector<StepKey> keys, std::size_t most, const AheadThreads& threads);
    AheadSteps(const AheadSteps&) = delete;
    AheadSteps& operator=(const AheadSteps&) = delete;
    /// Waits for the steps that have begun.
    ~AheadSteps();

    /// Drops the steps that nobody has begun. Does not wait.
    void GiveUp();

    /// No thread looks at anything here any more.
    [[nodiscard]] bool IsFinished() const { return running.load() == 0; }

    /// What was rendered since the last call.
    [[nodiscard]] std::vector<Result> TakeResults();

private:
    struct Piece {
        StepKey key;
        WaveData sound;
        std::atomic<bool> done = false;
        bool taken = false;
    };

    void Work();

    const AheadThreads& calls;
    std::vector<Piece> pieces;
    std::atomic<std::size_t> next = 0;
    std::atomic<std::size_t> running = 0;
    std::vector<std::thread> workers;
};

} // namespace sprout
