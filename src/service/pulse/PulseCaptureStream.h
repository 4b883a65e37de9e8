// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

#include "service/CaptureSource.h"
#include "service/pulse/PulseConnection.h"

struct pa_stream;

namespace sprout {

/// A stream from one source, which never moves to another by itself. It runs from the opening to the end: a stream that
/// was held up may bring stale frames afterwards.
///
/// All calls, the making and the end too, are made with the connection's mutex locked.
class PulseCaptureStream {
public:
    explicit PulseCaptureStream(PulseConnection& server) : connection(server) {}
    PulseCaptureStream(const PulseCaptureStream&) = delete;
    PulseCaptureStream& operator=(const PulseCaptureStream&) = delete;
    ~PulseCaptureStream();

    /// Opens the source of that name. Waits until `deadline` at most. framesToSkip: are thrown away at the beginning.
    [[nodiscard]] bool Open(const std::string& name, std::int64_t framesToSkip, PulseConnection::Lock& lock,
                            PulseConnection::Time deadline);
    /// From now on what comes goes to `captureSink`. follows: the stream behind which this one follows; what lies
    /// between both is a hole. Null where there is none.
    void GiveTo(CaptureSink& captureSink, const PulseCaptureStream* follows);
    [[nodiscard]] SourceState State() const;
    [[nodiscard]] const std::string& Source() const { return source; }

private:
    using Clock = std::chrono::steady_clock;

    void OnRead();
    void Take(const void* data, std::size_t bytes);
    /// Takes what is still to be skipped away from the front of so many frames; returns how many go.
    [[nodiscard]] std::int64_t Skip(std::int64_t frames);
    void TellGap(std::int64_t frames);

    PulseConnection& connection;
    pa_stream* stream = nullptr;
    std::string source;
    CaptureSink* sink = nullptr;
    std::int64_t skipped = 0; // frames still to be thrown away
    bool hasGap = false;      // in front of the next frame, since `lastTaken`
    Clock::time_point lastTaken;
};

} // namespace sprout
