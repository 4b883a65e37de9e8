// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>

#include "service/pulse/PulseConnection.h"

struct pa_time_event;

namespace sprout {

/// Calls a function once after a while, in the connection's thread.
///
/// All calls, including the destructor of a running timer, are made with the connection's mutex locked; the function
/// runs with it locked and may start or stop the timer.
class PulseTimer {
public:
    PulseTimer(PulseConnection& server, std::function<void()> call);
    PulseTimer(const PulseTimer&) = delete;
    PulseTimer& operator=(const PulseTimer&) = delete;
    ~PulseTimer() { Stop(); }

    /// Call only while the connection stands. A timer that runs begins anew.
    void Start(std::chrono::milliseconds time);
    void Stop();
    /// Whether it was started and not stopped since, even if the time is over.
    [[nodiscard]] bool IsStarted() const { return event != nullptr; }

private:
    PulseConnection& connection;
    const std::function<void()> whenOver;
    pa_time_event* event = nullptr;
};

} // namespace sprout
