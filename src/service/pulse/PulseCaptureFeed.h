// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

#include "service/CaptureSource.h"

struct pa_stream;

namespace sprout {

struct PulseLibrary;

/// Hands on what a stream of the server brings, and tells what it leaves out.
class PulseCaptureFeed {
public:
    using Clock = std::chrono::steady_clock;

    /// Throws away so many frames, which the stream begins with.
    void Skip(std::int64_t frames) { skipped = frames; }
    /// From now on what comes goes to `captureSink`. follows: the feed behind which this one follows; what lies between
    /// both is a hole. Null where there is none.
    void GiveTo(CaptureSink& captureSink, const PulseCaptureFeed* follows);

    /// Takes all that the stream has: frames, and holes of the server's own, which have a length and no data.
    void TakeAll(const PulseLibrary& calls, pa_stream* stream, Clock::time_point now = Clock::now());

private:
    /// data: null for a hole.
    void Take(const void* data, std::size_t bytes, Clock::time_point now);
    /// Takes what is still to be thrown away from the front of so many frames; returns how many go.
    [[nodiscard]] std::int64_t TakeSkipped(std::int64_t frames);
    void TellGap(std::int64_t frames, Clock::time_point now);

    CaptureSink* sink = nullptr;
    std::int64_t skipped = 0; // frames still to be thrown away
    bool hasGap = false;      // in front of the next frame, since `lastTaken`
    Clock::time_point lastTaken;
};

} // namespace sprout
