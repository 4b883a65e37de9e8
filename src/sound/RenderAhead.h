// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

#include "sound/AheadMix.h"
#include "sound/AheadPlan.h"
#include "sound/AheadSteps.h"
#include "sound/AheadThreads.h"
#include "sound/AheadWork.h"
#include "sound/ReadyMix.h"

namespace sprout {

/// Renders what the next play of the shared song needs before it is asked for: its missing steps into `TheStepCache`,
/// and then its mix, which waits here until `MixSong` takes it.
///
/// The song itself does not change, nothing is read from a file and nothing is shown: whatever a play shows, loads or
/// throws comes with the play. The threads work on values, so neither side waits for the other; at most as many as a
/// render uses run at a time, and none if there is nothing to do. A render that somebody waits for (`SharedSetting`)
/// interrupts the work. Interface thread only; only one of these may exist.
class RenderAhead : public AheadWork {
public:
    explicit RenderAhead(AheadThreads threads);
    /// Waits until the threads have ended: for one step at most.
    ~RenderAhead() override;

    void Begin() override;
    /// A mix whose memory is more than a tenth of what the machine has left is not made.
    void AllowMix() override;
    void TakeResults() override;
    void Interrupt() override;
    [[nodiscard]] bool WasInterrupted() const override { return wasInterrupted; }

    /// No thread works, and none waits for its turn.
    [[nodiscard]] bool IsAtRest() const;

    [[nodiscard]] bool HasMix() const { return ready.has_value(); }

    /// Gives a song its mix, as `MixSong` leaves it, if it is there.
    static bool HandMixTo(SongState& song);

    /// Interrupts the work, if there is any.
    static void LetPlayRender();

private:
    template <class Job>
    using Jobs = std::vector<std::unique_ptr<Job>>;

    void Collect();
    /// Returns whether the job is finished.
    bool CollectFrom(AheadSteps& job) const;
    void CollectMix();
    void StartSteps();
    void StartMix();
    [[nodiscard]] bool HasStepsToDo() const { return steps || !pending.empty(); }
    [[nodiscard]] StepCache SoundsOfPlan() const;

    inline static RenderAhead* current = nullptr;

    AheadThreads calls;
    AheadPlan plan;
    std::unordered_set<StepKey, StepKeyHash> wanted; // the keys of the plan
    std::vector<StepKey> pending;                    // of these, wait for threads
    std::unique_ptr<AheadSteps> steps;
    std::unique_ptr<AheadMix> mix;
    Jobs<AheadSteps> oldSteps; // given up; a step that has begun is finished
    Jobs<AheadMix> oldMixes;
    std::optional<ReadyMix> ready;
    bool mayMix = false;
    bool wasInterrupted = false;
};

} // namespace sprout
