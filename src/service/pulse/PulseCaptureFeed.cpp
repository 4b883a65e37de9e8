// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseCaptureFeed.h"

#include <algorithm>
#include <span>
#include <utility>

#include "service/pulse/PulseLibrary.h"

namespace sprout {

namespace {

constexpr std::size_t kFrameBytes = 4;
constexpr double kFramesASecond = 44100;
constexpr std::int64_t kLongestGap = 22050; // anything longer was a pause

} // namespace

void PulseCaptureFeed::GiveTo(CaptureSink& captureSink, const PulseCaptureFeed* follows)
{
    sink = &captureSink;
    hasGap = follows != nullptr;
    lastTaken = follows ? follows->lastTaken : Clock::now();
}

void PulseCaptureFeed::TakeAll(const PulseLibrary& calls, pa_stream* stream, Clock::time_point now)
{
    const void* data = nullptr;
    std::size_t bytes = 0;
    while (calls.StreamPeek(stream, &data, &bytes) == 0 && bytes > 0) {
        Take(data, bytes, now);
        calls.StreamDrop(stream);
    }
}

void PulseCaptureFeed::Take(const void* data, std::size_t bytes, Clock::time_point now)
{
    const auto frames = static_cast<std::int64_t>(bytes / kFrameBytes);
    const std::int64_t out = TakeSkipped(frames);
    if (!sink || out == frames)
        return;
    if (!data) {
        if (!hasGap) // the gap reaches to the next frame and includes this hole
            sink->TakeHole(frames - out);
        return;
    }
    if (std::exchange(hasGap, false))
        TellGap(frames - out, now);
    lastTaken = now;
    sink->Take(
        std::span(static_cast<const std::byte*>(data), bytes).subspan(static_cast<std::size_t>(out) * kFrameBytes));
}

std::int64_t PulseCaptureFeed::TakeSkipped(std::int64_t frames)
{
    const std::int64_t out = std::min(frames, skipped);
    skipped -= out;
    return out;
}

void PulseCaptureFeed::TellGap(std::int64_t frames, Clock::time_point now)
{
    const std::chrono::duration<double> since = now - lastTaken;
    const std::int64_t gap = static_cast<std::int64_t>(since.count() * kFramesASecond) - frames;
    if (gap > 0)
        sink->TakeHole(std::min(gap, kLongestGap));
}

} // namespace sprout
