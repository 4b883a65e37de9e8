// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>

#include "base/SoundFormat.h"
#include "service/pulse/PulseConnection.h"
#include "service/pulse/SoundQueue.h"

struct pa_operation;
struct pa_stream;

namespace sprout {

/// What a playback stream's server holds: this program may be late by that much, as on a busy machine. A stop does not
/// wait for it.
inline constexpr std::chrono::milliseconds kQueuedAtServer{2000};
/// What the device is given at a time; a stop and the start of the next sound wait for it.
inline constexpr std::chrono::milliseconds kGivenAtATime{10};

/// Why the server is asked for a stream's timing.
enum class TimingQuestion { AtStart, AtStop, AtEnd };

/// A stream's timing at the server.
struct StreamTiming {
    PulseConnection::Time Time;       ///< of the following
    std::int64_t Taken = 0;           ///< bytes that the device has taken from the stream
    std::chrono::nanoseconds Unheard; ///< of these, how long it takes until the last one is heard
    std::chrono::microseconds Given;  ///< what the device is given at a time
};

/// A stream that plays what is written to it, in one format, and the questions about its timing that are on their way
/// to the server, which answers in order.
///
/// It is opened stopped, and can be closed and opened again. All calls, including the destructor of an open stream, are
/// made with the connection's mutex locked, and the events come with it locked. Any event may close the stream.
class PulsePlaybackStream {
public:
    /// What the server reports about the open stream.
    struct Events {
        std::function<void()> Lost;       ///< the stream is gone; it stays to be closed
        std::function<void()> Started;    ///< the device takes data again
        std::function<void()> Timed;      ///< `Timing` is new
        std::function<void()> MoreWanted; ///< `Write` takes more
        std::function<void(TimingQuestion question, const StreamTiming& timing)> Answered;
    };

    PulsePlaybackStream(PulseConnection& server, const SoundFormat& soundFormat, Events whatHappens);
    PulsePlaybackStream(const PulsePlaybackStream&) = delete;
    PulsePlaybackStream& operator=(const PulsePlaybackStream&) = delete;
    ~PulsePlaybackStream() { Close(); }

    /// Opens it; the connection must stand. Waits until `deadline` at most. After a failure, close it.
    [[nodiscard]] bool Open(PulseConnection::Lock& lock, PulseConnection::Time deadline);
    /// No event comes from here on.
    void Close();
    [[nodiscard]] bool IsOpen() const { return stream != nullptr; }
    /// Whether it is open and the server has it.
    [[nodiscard]] bool IsReady() const;

    // The following need an open stream.

    /// Writes the next `bytes` of the queue, the first of them `seek` bytes behind what was written last.
    void Write(SoundQueue& queue, std::size_t bytes, std::int64_t seek = 0);
    /// Writes as much of the queue as the server wants.
    void WriteWanted(SoundQueue& queue);
    /// Throws away what was written and not yet taken.
    void Flush();
    void Run();
    /// The device gets no more, and what was written stays.
    void Stop();

    /// The last known timing, if there is one.
    [[nodiscard]] std::optional<StreamTiming> Timing() const;
    /// Asks the server for its timing; only `Timed` reports it.
    void UpdateTiming();
    /// Asks the server for its timing; `Answered` reports it. Returns false if it has been silent for so long that no
    /// more can be asked.
    [[nodiscard]] bool Ask(TimingQuestion question);
    /// Whether such an answer is still to come.
    [[nodiscard]] bool IsAsked(TimingQuestion question) const;
    /// `Answered` reports nothing of what was asked so far.
    void ForgetQuestions();

private:
    struct Question {
        pa_operation* operation = nullptr;
        std::optional<TimingQuestion> reason; // none: nobody waits for the answer any more
    };

    void ListenToStream();
    void OnState();
    void OnAnswer(bool succeeded);
    void CancelQuestions();
    void Cork(bool corked);

    PulseConnection& connection;
    const SoundFormat format;
    const Events events;
    pa_stream* stream = nullptr;
    std::deque<Question> questions;
};

} // namespace sprout
