// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "service/CaptureSource.h"
#include "service/pulse/PulseCaptureFeed.h"
#include "service/pulse/PulseConnection.h"

struct pa_stream;

namespace sprout {

/// A stream from one source, which never moves to another by itself. It runs from `Open` to the destructor: a stream
/// that was held up may deliver stale frames afterwards.
///
/// All calls, including constructor and destructor, are made with the connection's mutex locked.
class PulseCaptureStream {
public:
    explicit PulseCaptureStream(PulseConnection& server) : connection(server) {}
    PulseCaptureStream(const PulseCaptureStream&) = delete;
    PulseCaptureStream& operator=(const PulseCaptureStream&) = delete;
    ~PulseCaptureStream();

    /// Opens the source of that name. Waits until `deadline` at most. framesToSkip: are thrown away at the start.
    [[nodiscard]] bool Open(const std::string& name, std::int64_t framesToSkip, PulseConnection::Lock& lock,
                            PulseConnection::Time deadline);
    /// Sends what comes from now on to `captureSink`, see `PulseCaptureFeed`.
    void GiveTo(CaptureSink& captureSink, const PulseCaptureStream* follows)
    {
        feed.GiveTo(captureSink, follows ? &follows->feed : nullptr);
    }
    [[nodiscard]] SourceState State() const;
    [[nodiscard]] const std::string& Source() const { return source; }

private:
    PulseConnection& connection;
    pa_stream* stream = nullptr;
    std::string source;
    PulseCaptureFeed feed;
};

} // namespace sprout
