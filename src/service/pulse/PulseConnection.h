// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>

struct pa_context;
struct pa_mainloop;
struct pa_mainloop_api;
struct pa_operation;

namespace sprout {

/// The outcome of a question to the sound server.
enum class ServerAnswer {
    Yes,
    No,      ///< there is no server, or no library to talk to it
    Silence, ///< something is there but did not answer in time
};

/// No call waits longer for a server that does not answer: the window freezes meanwhile.
inline constexpr std::chrono::milliseconds kServerPatience{800};

/// The deadline for a call to the server that begins now.
[[nodiscard]] inline std::chrono::steady_clock::time_point ServerDeadline()
{
    return std::chrono::steady_clock::now() + kServerPatience;
}

/// The connection to the sound server, PulseAudio or PipeWire, and the thread that reads what the server sends.
///
/// libpulse's own thread waits without a limit and uses locks that no tool sees, so this runs libpulse's plain loop in
/// a thread that waits with the mutex unlocked. All calls of libpulse are made with `Mutex()` locked, and the loop's
/// callbacks run with it locked. The thread sleeps while the server is silent.
class PulseConnection {
public:
    using Lock = std::unique_lock<std::mutex>;
    using Time = std::chrono::steady_clock::time_point;

    PulseConnection() = default;
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;
    ~PulseConnection();

    [[nodiscard]] std::mutex& Mutex() { return mutex; }

    /// Connects to the server that the environment names, unless connected. Waits until `deadline` at most.
    [[nodiscard]] ServerAnswer Connect(Lock& lock, Time deadline);
    /// Output devices of the server; 0 if it does not answer in time.
    [[nodiscard]] std::int32_t CountSinks(Lock& lock, Time deadline);
    /// Whether there is a connection, as far as is known.
    [[nodiscard]] bool Stands() const;
    /// Call only while the connection stands.
    [[nodiscard]] pa_context* Context() const { return context; }
    [[nodiscard]] pa_mainloop_api& Api() const;

    /// Waits until `condition` holds; it is checked after each `Notify`. Returns false if it did not hold in time.
    template <class Condition>
    [[nodiscard]] bool WaitFor(Lock& lock, Time deadline, Condition condition)
    {
        return changed.wait_until(lock, deadline, condition);
    }
    /// Waits until the answer to `question`, which may be null, is complete, then releases it: nothing of it comes
    /// later. Returns false if it was not complete in time.
    [[nodiscard]] bool WaitForAnswer(Lock& lock, Time deadline, pa_operation* question, const bool& isWhole);
    void Notify() { changed.notify_all(); }

private:
    [[nodiscard]] bool StartLoop();
    void Disconnect();
    void RunLoop();

    std::mutex mutex;
    std::condition_variable changed;
    pa_mainloop* loop = nullptr; // from the first question on
    pa_context* context = nullptr;
    std::thread thread; // runs the loop
};

} // namespace sprout
