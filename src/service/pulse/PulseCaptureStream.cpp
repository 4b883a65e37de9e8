// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseCaptureStream.h"

#include "service/pulse/PulseLibrary.h"

namespace sprout {

namespace {

constexpr pa_sample_spec kFormat{PA_SAMPLE_S16LE, 44100, 2};
constexpr std::uint32_t kFragmentBytes = 3528; // 20 ms

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
    feed.Skip(framesToSkip);
    stream = Pulse().StreamNew(connection.Context(), "Recording", &kFormat, nullptr);
    if (!stream)
        return false;
    Pulse().StreamSetStateCallback(
        stream, [](pa_stream*, void* self) { static_cast<PulseCaptureStream*>(self)->connection.Notify(); }, this);
    Pulse().StreamSetReadCallback(
        stream,
        [](pa_stream* readable, std::size_t, void* self) {
            static_cast<PulseCaptureStream*>(self)->feed.TakeAll(Pulse(), readable);
        },
        this);
    constexpr auto any = static_cast<std::uint32_t>(-1);
    const pa_buffer_attr buffer{any, any, any, any, kFragmentBytes};
    constexpr auto flags = static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE);
    if (Pulse().StreamConnectRecord(stream, name.c_str(), &buffer, flags) < 0)
        return false;
    const auto isDecided = [this] { return Pulse().StreamGetState(stream) != PA_STREAM_CREATING; };
    if (!connection.WaitFor(lock, deadline, isDecided) || State() == SourceState::Gone)
        return false;
    // If the source disappeared just then, its stream may have been moved to another one.
    const char* const opened = Pulse().StreamGetDeviceName(stream);
    return opened && name == opened;
}

SourceState PulseCaptureStream::State() const
{
    if (!stream || Pulse().StreamGetState(stream) != PA_STREAM_READY)
        return SourceState::Gone;
    return Pulse().StreamIsSuspended(stream) == 1 ? SourceState::Suspended : SourceState::Runs;
}

} // namespace sprout
