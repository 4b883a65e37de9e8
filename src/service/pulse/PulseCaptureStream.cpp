// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseCaptureStream.h"

#include <algorithm>
#include <span>
#include <utility>

#include "service/pulse/PulseLibrary.h"

namespace sprout {

namespace {

constexpr pa_sample_spec kFormat{PA_SAMPLE_S16LE, 44100, 2};
constexpr std::size_t kFrameBytes = 4;
constexpr std::uint32_t kFragmentBytes = 3528; // 20 ms
constexpr std::int64_t kLongestGap = 22050;    // what lasts longer was a pause

} // namespace

PulseCaptureStream::~PulseCaptureStream()
{
    if (!stream)
        return;
    Pulse().StreamSetStateCallback(stream, nullptr, nullptr);
    Pulse().StreamSetReadCallback(stream, nullptr, nullptr);
    Pulse().StreamDisconnect(stream);
    Pulse().StreamUnref(stream);
}

bool PulseCaptureStream::Open(const std::string& name, std::int64_t framesToSkip, PulseConnection::Lock& lock,
                              PulseConnection::Time deadline)
{
    source = name;
    skipped = framesToSkip;
    stream = Pulse().StreamNew(connection.Context(), "Recording", &kFormat, nullptr);
    if (!stream)
        return false;
    Pulse().StreamSetStateCallback(
        stream, [](pa_stream*, void* self) { static_cast<PulseCaptureStream*>(self)->connection.Notify(); }, this);
    Pulse().StreamSetReadCallback(
        stream, [](pa_stream*, std::size_t, void* self) { static_cast<PulseCaptureStream*>(self)->OnRead(); }, this);
    constexpr auto any = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr buffer{any, any, any, any, kFragmentBytes};
    constexpr auto flags = static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE);
    if (Pulse().StreamConnectRecord(stream, name.c_str(), &buffer, flags) < 0)
        return false;
    const auto isDecided = [this] { return Pulse().StreamGetState(stream) != PA_STREAM_CREATING; };
    if (!connection.WaitFor(lock, deadline, isDecided) || State() == SourceState::Gone)
        return false;
    // A source that went at that moment would have left its stream to another one.
    const char* const opened = Pulse().StreamGetDeviceName(stream);
    return opened && name == opened;
}

void PulseCaptureStream::GiveTo(CaptureSink& captureSink, const PulseCaptureStream* follows)
{
    sink = &captureSink;
    hasGap = follows != nullptr;
    lastTaken = follows ? follows->lastTaken : Clock::now();
}

SourceState PulseCaptureStream::State() const
{
    if (!stream || Pulse().StreamGetState(stream) != PA_STREAM_READY)
        return SourceState::Gone;
    return Pulse().StreamIsSuspended(stream) == 1 ? SourceState::Suspended : SourceState::Runs;
}

void PulseCaptureStream::OnRead()
{
    const void* data = nullptr;
    std::size_t bytes = 0;
    while (Pulse().StreamPeek(stream, &data, &bytes) == 0 && bytes > 0) {
        Take(data, bytes);
        Pulse().StreamDrop(stream);
    }
}

void PulseCaptureStream::Take(const void* data, std::size_t bytes)
{
    const auto frames = static_cast<std::int64_t>(bytes / kFrameBytes);
    const std::int64_t out = Skip(frames);
    if (!sink || out == frames)
        return;
    if (!data) // a hole
        return sink->TakeHole(frames - out);
    if (std::exchange(hasGap, false))
        TellGap(frames - out);
    lastTaken = Clock::now();
    sink->Take(
        std::span(static_cast<const std::byte*>(data), bytes).subspan(static_cast<std::size_t>(out) * kFrameBytes));
}

std::int64_t PulseCaptureStream::Skip(std::int64_t frames)
{
    const std::int64_t out = std::min(frames, skipped);
    skipped -= out;
    return out;
}

void PulseCaptureStream::TellGap(std::int64_t frames)
{
    const std::chrono::duration<double> since = Clock::now() - lastTaken;
    const std::int64_t gap = static_cast<std::int64_t>(since.count() * kFormat.rate) - frames;
    if (gap > 0)
        sink->TakeHole(std::min(gap, kLongestGap));
}

} // namespace sprout
