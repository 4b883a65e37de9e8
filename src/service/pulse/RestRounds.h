// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include "service/pulse/PulseConnection.h"
#include "service/pulse/PulseTimer.h"

namespace sprout {

/// Notices when something was not used for a while: after three rounds without use. All calls and functions as with
/// `PulseTimer`.
class RestRounds {
public:
    /// isUsed: whether it is in use at the end of a round; may stop the rounds. rest: called once, after which no
    /// rounds run.
    RestRounds(PulseConnection& server, std::chrono::milliseconds round, std::function<bool()> isUsed,
               std::function<void()> rest);

    /// Begins to count anew.
    void Start();
    void Stop() { timer.Stop(); }
    /// Counts the running round as one with use, and the first one if none runs.
    void NoteUse() { used = true; }

private:
    void OnRound();

    const std::chrono::milliseconds roundTime;
    const std::function<bool()> whetherUsed;
    const std::function<void()> whenRested;
    PulseTimer timer;
    int silentRounds = 0;
    bool used = false; // since the last round
};

} // namespace sprout
