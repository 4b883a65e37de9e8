// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulsePlaybackStream.h"

#include <algorithm>
#include <string>
#include <utility>

#include "base/Product.h"
#include "service/pulse/PulseLibrary.h"

namespace sprout {

namespace {

using std::chrono::microseconds;
using std::chrono::nanoseconds;

nanoseconds AgeOf(const timeval& time)
{
    const auto since1970 = std::chrono::system_clock::now().time_since_epoch();
    const auto age = since1970 - std::chrono::seconds(time.tv_sec) - microseconds(time.tv_usec);
    // The clock may have been set in between.
    return std::clamp<nanoseconds>(age, nanoseconds(0), std::chrono::seconds(1));
}

PulsePlaybackStream& StreamOf(void* self)
{
    return *static_cast<PulsePlaybackStream*>(self);
}

} // namespace

PulsePlaybackStream::PulsePlaybackStream(PulseConnection& server, const SoundFormat& soundFormat, Events whatHappens)
    : connection(server), format(soundFormat), events(std::move(whatHappens))
{
}

bool PulsePlaybackStream::Open(PulseConnection::Lock& lock, PulseConnection::Time deadline)
{
    const pa_sample_spec samples{format.Bits == 8 ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE,
                                 static_cast<std::uint32_t>(format.Rate), static_cast<std::uint8_t>(format.Channels)};
    stream = Pulse().StreamNew(connection.Context(), std::string(kProductName).c_str(), &samples, nullptr);
    if (!stream)
        return false;
    ListenToStream();
    constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);
    // Without a pre-buffer the stream continues despite late data, and so keeps time.
    const pa_buffer_attr queued{kServersChoice, static_cast<std::uint32_t>(BytesOf(format, kQueuedAtServer)), 0,
                                static_cast<std::uint32_t>(BytesOf(format, kGivenAtATime)), kServersChoice};
    const auto flags = static_cast<pa_stream_flags_t>(PA_STREAM_START_CORKED | PA_STREAM_EARLY_REQUESTS |
                                                      PA_STREAM_AUTO_TIMING_UPDATE);
    Pulse().StreamConnectPlayback(stream, nullptr, &queued, flags, nullptr, nullptr);
    const bool answered = connection.WaitFor(lock, deadline, [this] {
        const pa_stream_state_t state = Pulse().StreamGetState(stream);
        return state == PA_STREAM_READY || !PA_STREAM_IS_GOOD(state);
    });
    return answered && IsReady();
}

void PulsePlaybackStream::ListenToStream()
{
    Pulse().StreamSetStateCallback(
        stream, [](pa_stream*, void* self) { StreamOf(self).OnState(); }, this);
    Pulse().StreamSetStartedCallback(
        stream, [](pa_stream*, void* self) { StreamOf(self).events.Started(); }, this);
    Pulse().StreamSetLatencyUpdateCallback(
        stream, [](pa_stream*, void* self) { StreamOf(self).events.Timed(); }, this);
    Pulse().StreamSetWriteCallback(
        stream, [](pa_stream*, std::size_t, void* self) { StreamOf(self).events.MoreWanted(); }, this);
}

void PulsePlaybackStream::Close()
{
    CancelQuestions();
    if (!stream)
        return;
    Pulse().StreamSetStateCallback(stream, nullptr, nullptr);
    Pulse().StreamSetStartedCallback(stream, nullptr, nullptr);
    Pulse().StreamSetLatencyUpdateCallback(stream, nullptr, nullptr);
    Pulse().StreamSetWriteCallback(stream, nullptr, nullptr);
    Pulse().StreamDisconnect(stream);
    Pulse().StreamUnref(std::exchange(stream, nullptr));
}

bool PulsePlaybackStream::IsReady() const
{
    return stream && Pulse().StreamGetState(stream) == PA_STREAM_READY;
}

void PulsePlaybackStream::OnState()
{
    if (!PA_STREAM_IS_GOOD(Pulse().StreamGetState(stream)))
        events.Lost();
    connection.Notify();
}

void PulsePlaybackStream::Write(SoundQueue& queue, std::size_t bytes, std::int64_t seek)
{
    while (bytes > 0) {
        void* data = nullptr;
        std::size_t count = bytes;
        if (Pulse().StreamBeginWrite(stream, &data, &count) < 0)
            return;
        count = std::min(count, bytes);
        queue.Fill({static_cast<std::byte*>(data), count});
        Pulse().StreamWrite(stream, data, count, nullptr, std::exchange(seek, 0), PA_SEEK_RELATIVE);
        bytes -= count;
    }
}

void PulsePlaybackStream::WriteWanted(SoundQueue& queue)
{
    const std::size_t wanted = Pulse().StreamWritableSize(stream);
    if (wanted != static_cast<std::size_t>(-1))
        Write(queue, wanted);
}

void PulsePlaybackStream::Flush()
{
    Forget(Pulse().StreamFlush(stream, nullptr, nullptr));
}

void PulsePlaybackStream::Run()
{
    Cork(false);
}

void PulsePlaybackStream::Stop()
{
    Cork(true);
}

void PulsePlaybackStream::Cork(bool corked)
{
    Forget(Pulse().StreamCork(stream, corked ? 1 : 0, nullptr, nullptr));
}

std::optional<StreamTiming> PulsePlaybackStream::Timing() const
{
    const pa_timing_info* const info = Pulse().StreamGetTimingInfo(stream);
    if (!info)
        return {};
    return StreamTiming{std::chrono::steady_clock::now() - AgeOf(info->timestamp), info->read_index,
                        microseconds(info->sink_usec), microseconds(info->configured_sink_usec)};
}

void PulsePlaybackStream::UpdateTiming()
{
    Forget(Pulse().StreamUpdateTimingInfo(stream, nullptr, nullptr));
}

bool PulsePlaybackStream::Ask(TimingQuestion question)
{
    pa_operation* const operation = Pulse().StreamUpdateTimingInfo(
        stream, [](pa_stream*, int succeeded, void* self) { StreamOf(self).OnAnswer(succeeded != 0); }, this);
    if (operation)
        questions.push_back({operation, question});
    return operation != nullptr;
}

bool PulsePlaybackStream::IsAsked(TimingQuestion question) const
{
    return std::ranges::find(questions, question, &Question::reason) != questions.end();
}

void PulsePlaybackStream::OnAnswer(bool succeeded)
{
    const Question question = questions.front();
    questions.pop_front();
    Forget(question.operation);
    const std::optional<StreamTiming> timing = Timing();
    if (question.reason && succeeded && timing)
        events.Answered(*question.reason, *timing);
}

void PulsePlaybackStream::ForgetQuestions()
{
    for (Question& question : questions)
        question.reason.reset();
}

void PulsePlaybackStream::CancelQuestions()
{
    for (const Question& question : questions) {
        Pulse().OperationCancel(question.operation);
        Forget(question.operation);
    }
    questions.clear();
}

} // namespace sprout
