// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

#include "service/CaptureSource.h"

struct pa_stream;

namespace sprout {

struct PulseLibrary;

/// Passes on what a stream of the server delivers, and reports what it leaves out.
class PulseCaptureFeed {
public:
    using Clock = std::chrono::steady_clock;

    /// Throws away this many frames at the start of the stream.
    void Skip(std::int64_t frames) { skipped = frames; }
    /// Sends what comes from now on to `captureSink`. follows: the feed that this one follows, null if there is none;
    /// the time between both is a hole.
    void GiveTo(CaptureSink& captureSink, const PulseCaptureFeed* follows);

    /// Takes all that the stream has: frames, and the server's own holes, which have a length but no data.
    void TakeAll(const PulseLibrary& calls, pa_stream* stream, Clock::time_point now = Clock::now());

private:
    /// data: null for a hole.
    void Take(const void* data, std::size_t bytes, Clock::time_point now);
    /// Of this many frames, takes those still to be thrown away from the front; returns how many.
    [[nodiscard]] std::int64_t TakeSkipped(std::int64_t frames);
    void TellGap(std::int64_t frames, Clock::time_point now);

    CaptureSink* sink = nullptr;
    std::int64_t skipped = 0; // frames still to be thrown away
    bool hasGap = false;      // before the next frame, since `lastTaken`
    Clock::time_point lastTaken;
};

} // namespace sprout
