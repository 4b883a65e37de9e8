// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSound.h"

#include <memory>
#include <string>
#include <utility>

#include "base/Product.h"
#include "service/pulse/PulseLibrary.h"

namespace sprout {

namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;
using std::chrono::nanoseconds;

/// What the server holds: this program may be late by that much.
constexpr milliseconds kQueued{500};
/// What the device is given at a time; a stop and the start of the next sound wait for it.
constexpr milliseconds kGivenAtATime{10};
/// The time that a change takes to the server, besides what the device has already been given.
constexpr milliseconds kWayOfAChange{10};
/// For how long the server's last report is trusted to detect a sound's end: the device may have stalled since.
constexpr milliseconds kTrustedAtEnd{50};
constexpr int kRoundsBeforeRest = 3;

PulseConnection::Time Now()
{
    return std::chrono::steady_clock::now();
}

nanoseconds AgeOf(const timeval& time)
{
    const auto since1970 = std::chrono::system_clock::now().time_since_epoch();
    const auto age = since1970 - std::chrono::seconds(time.tv_sec) - microseconds(time.tv_usec);
    // The clock may have been set in between.
    return std::clamp<nanoseconds>(age, nanoseconds(0), std::chrono::seconds(1));
}

} // namespace

PulseSound::PulseSound(PulseConnection& server, const SoundFormat& format, milliseconds round,
                       milliseconds tailBehindEnd)
    : connection(server), restRound(round), tailTime(tailBehindEnd), queue(format)
{
}

PulseSound::~PulseSound()
{
    const Lock lock(connection.Mutex());
    Close();
}

std::int64_t PulseSound::Bytes(nanoseconds time) const
{
    const double seconds = std::chrono::duration<double>(time).count();
    return static_cast<std::int64_t>(seconds * queue.Format().Rate) * queue.Format().FrameBytes();
}

bool PulseSound::IsAliveIn(const SoundFormat& wanted)
{
    const Lock lock(connection.Mutex());
    return wanted == queue.Format() && (!stream || Pulse().StreamGetState(stream) == PA_STREAM_READY);
}

bool PulseSound::Wake(Time deadline)
{
    Lock lock(connection.Mutex());
    return Wake(lock, deadline);
}

bool PulseSound::Wake(Lock& lock, Time deadline)
{
    used = true;
    if (stream && Pulse().StreamGetState(stream) == PA_STREAM_READY)
        return true;
    Close();
    if (connection.Connect(lock, deadline) == ServerAnswer::Yes && Open(lock, deadline))
        return true;
    Close();
    return false;
}

bool PulseSound::Open(Lock& lock, Time deadline)
{
    const SoundFormat& format = queue.Format();
    const pa_sample_spec samples{format.Bits == 8 ? PA_SAMPLE_U8 : PA_SAMPLE_S16LE,
                                 static_cast<std::uint32_t>(format.Rate), static_cast<std::uint8_t>(format.Channels)};
    stream = Pulse().StreamNew(connection.Context(), std::string(kProductName).c_str(), &samples, nullptr);
    if (!stream)
        return false;
    ListenToStream();
    constexpr auto kServersChoice = static_cast<std::uint32_t>(-1);
    // Without a pre-buffer the stream continues despite late data, and so keeps time.
    const pa_buffer_attr queued{kServersChoice, static_cast<std::uint32_t>(Bytes(kQueued)), 0,
                                static_cast<std::uint32_t>(Bytes(kGivenAtATime)), kServersChoice};
    const auto flags = static_cast<pa_stream_flags_t>(PA_STREAM_START_CORKED | PA_STREAM_EARLY_REQUESTS |
                                                      PA_STREAM_AUTO_TIMING_UPDATE);
    Pulse().StreamConnectPlayback(stream, nullptr, &queued, flags, nullptr, nullptr);
    const bool answered = connection.WaitFor(lock, deadline, [this] {
        const pa_stream_state_t state = Pulse().StreamGetState(stream);
        return state == PA_STREAM_READY || !PA_STREAM_IS_GOOD(state);
    });
    if (!answered || Pulse().StreamGetState(stream) != PA_STREAM_READY)
        return false;
    silentRounds = 0;
    rounds = After<&PulseSound::OnRound>(restRound);
    return true;
}

void PulseSound::ListenToStream()
{
    Pulse().StreamSetStateCallback(
        stream, [](pa_stream*, void* self) { static_cast<PulseSound*>(self)->OnState(); }, this);
    Pulse().StreamSetStartedCallback(
        stream, [](pa_stream*, void* self) { static_cast<PulseSound*>(self)->OnStarted(); }, this);
    Pulse().StreamSetLatencyUpdateCallback(
        stream, [](pa_stream*, void* self) { static_cast<PulseSound*>(self)->OnTimingInfo(); }, this);
    Pulse().StreamSetWriteCallback(
        stream, [](pa_stream*, std::size_t, void* self) { static_cast<PulseSound*>(self)->OnMoreWanted(); }, this);
}

void PulseSound::Close()
{
    EndRounds();
    EndTail();
    CancelQuestions();
    holdsQueue = false;
    if (!stream)
        return;
    Pulse().StreamSetStateCallback(stream, nullptr, nullptr);
    Pulse().StreamSetStartedCallback(stream, nullptr, nullptr);
    Pulse().StreamSetLatencyUpdateCallback(stream, nullptr, nullptr);
    Pulse().StreamSetWriteCallback(stream, nullptr, nullptr);
    Pulse().StreamDisconnect(stream);
    Pulse().StreamUnref(std::exchange(stream, nullptr));
}

template <void (PulseSound::*Call)()>
pa_time_event* PulseSound::After(milliseconds time)
{
    return Pulse().ContextRtTimeNew(
        connection.Context(), Pulse().RtClockNow() + static_cast<pa_usec_t>(microseconds(time).count()),
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* self) { (static_cast<PulseSound*>(self)->*Call)(); },
        this);
}

void PulseSound::EndRounds()
{
    if (rounds)
        connection.Api().time_free(std::exchange(rounds, nullptr));
}

void PulseSound::EndTail()
{
    if (tail)
        connection.Api().time_free(std::exchange(tail, nullptr));
}

void PulseSound::OnRound()
{
    Follow();
    if (!stream)
        return;
    silentRounds = std::exchange(used, false) || playing ? 0 : silentRounds + 1;
    if (silentRounds == kRoundsBeforeRest)
        return Close();
    Pulse().ContextRtTimeRestart(connection.Context(), rounds,
                                 Pulse().RtClockNow() + static_cast<pa_usec_t>(microseconds(restRound).count()));
}

void PulseSound::OnState()
{
    if (!PA_STREAM_IS_GOOD(Pulse().StreamGetState(stream))) {
        Follow();
        playing = false;
        holdsQueue = false;
        EndRounds();
        EndTail();
    }
    connection.Notify();
}

bool PulseSound::AskWhere(Answer answer)
{
    pa_operation* const operation = Pulse().StreamUpdateTimingInfo(
        stream, [](pa_stream*, int succeeded, void* self) { static_cast<PulseSound*>(self)->OnAnswer(succeeded != 0); },
        this);
    if (operation)
        questions.push_back({operation, answer});
    else // too many wait at a server that hangs; the next play opens a new stream
        Close();
    return operation != nullptr;
}

void PulseSound::OnAnswer(bool succeeded)
{
    const Question question = questions.front();
    questions.pop_front();
    Forget(question.operation);
    if (question.answer && succeeded)
        (this->*question.answer)();
}

void PulseSound::ForgetQuestions()
{
    for (Question& question : questions)
        question.answer = nullptr;
}

void PulseSound::CancelQuestions()
{
    for (const Question& question : questions) {
        Pulse().OperationCancel(question.operation);
        Forget(question.operation);
    }
    questions.clear();
}

void PulseSound::OnBegun()
{
    takenAtStart = Pulse().StreamGetTimingInfo(stream)->read_index;
    if (!takenAtPlace0)
        takenAtPlace0 = *takenAtStart - place;
}

void PulseSound::OnStopped()
{
    // What the device has taken is heard to its end; what it gave back is heard when the sound continues.
    if (takenAtPlace0)
        place = std::max<std::int64_t>(0, Pulse().StreamGetTimingInfo(stream)->read_index - *takenAtPlace0);
}

void PulseSound::OnStarted()
{
    if (!playing || !takenAtStart)
        return;
    if (!firstTaken)
        firstTaken = Now();
    Forget(Pulse().StreamUpdateTimingInfo(stream, nullptr, nullptr));
}

void PulseSound::OnTimingInfo()
{
    const pa_timing_info* const info = Pulse().StreamGetTimingInfo(stream);
    if (!playing || !takenAtStart || !info || info->read_index <= *takenAtStart)
        return;
    const std::int64_t unheard = Bytes(microseconds(info->sink_usec));
    heard = Heard{Now() - AgeOf(info->timestamp), info->read_index - *takenAtPlace0 - unheard};
}

void PulseSound::OnMoreWanted()
{
    Follow();
    if (playing)
        Write(Pulse().StreamWritableSize(stream), 0);
}

void PulseSound::Follow()
{
    if (!playing || !heard)
        return;
    const nanoseconds age = Now() - heard->time;
    const std::int64_t now = std::min({heard->place + Bytes(age), queue.Filled(), queue.End()});
    place = std::max(place, now);
    if (!queue.EndsBy(place))
        return;
    constexpr Answer kTold = &PulseSound::Follow;
    if (queue.EndsBy(age <= kTrustedAtEnd ? now : heard->place))
        End();
    else if (age > kTrustedAtEnd && std::ranges::find(questions, kTold, &Question::answer) == questions.end() &&
             !AskWhere(kTold))
        playing = false;
}

void PulseSound::Write(std::size_t bytes, std::int64_t seek)
{
    if (bytes == static_cast<std::size_t>(-1))
        return;
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

void PulseSound::Cork(bool corked)
{
    Forget(Pulse().StreamCork(stream, corked ? 1 : 0, nullptr, nullptr));
}

std::optional<PulseSound::Time> PulseSound::FirstTaken()
{
    const Lock lock(connection.Mutex());
    return firstTaken;
}

void PulseSound::Load(std::span<const std::byte> pcm)
{
    {
        const Lock lock(connection.Mutex());
        StopStream();
        ForgetQuestions();
        holdsQueue = false;
        place = 0;
    }
    queue.Load(pcm, soundBytes);
}

void PulseSound::Start(StartFrom from, Loop loop)
{
    Lock lock(connection.Mutex());
    StopStream();
    if (from == StartFrom::Beginning) {
        firstTaken.reset();
        holdsQueue = false;
        place = 0;
    }
    if (!Wake(lock, Now() + kServerPatience))
        return;
    playing = holdsQueue ? GoOn(loop) : Begin(loop);
}

bool PulseSound::Begin(Loop loop)
{
    queue.Start(place, loop);
    if (queue.EndsBy(place))
        return false;
    ForgetQuestions();
    heard.reset();
    takenAtPlace0.reset();
    takenAtStart.reset();
    holdsQueue = true;
    if (tail)
        OnTailHeard();
    Forget(Pulse().StreamFlush(stream, nullptr, nullptr));
    if (!AskWhere(&PulseSound::OnBegun))
        return false;
    Write(static_cast<std::size_t>(Bytes(kQueued)), 0);
    Cork(false);
    return true;
}

bool PulseSound::GoOn(Loop loop)
{
    heard.reset();
    takenAtStart.reset();
    if (!AskWhere(&PulseSound::OnBegun))
        return false;
    ChangeLooping(loop, place);
    Write(Pulse().StreamWritableSize(stream), 0);
    Cork(false);
    return true;
}

void PulseSound::Stop()
{
    const Lock lock(connection.Mutex());
    StopStream();
}

void PulseSound::StopStream()
{
    Follow();
    if (!std::exchange(playing, false))
        return;
    Cork(true);
    static_cast<void>(AskWhere(&PulseSound::OnStopped));
}

void PulseSound::End()
{
    playing = false;
    holdsQueue = false;
    // Some servers report the last frames as heard while they are still giving them to the device.
    tail = After<&PulseSound::OnTailHeard>(tailTime);
}

void PulseSound::OnTailHeard()
{
    EndTail();
    Cork(true);
}

SoundPlace PulseSound::Place()
{
    const Lock lock(connection.Mutex());
    Follow();
    return {queue.FrameAt(place), playing};
}

void PulseSound::SetLooping(Loop loop)
{
    const Lock lock(connection.Mutex());
    Follow();
    if (playing)
        ChangeLooping(loop, FirstPlaceNotGiven());
}

std::int64_t PulseSound::FirstPlaceNotGiven() const
{
    const pa_timing_info* const info = Pulse().StreamGetTimingInfo(stream);
    const milliseconds given =
        info ? std::chrono::ceil<milliseconds>(microseconds(info->configured_sink_usec)) : kGivenAtATime;
    return place + Bytes(given + kWayOfAChange);
}

void PulseSound::ChangeLooping(Loop loop, std::int64_t firstPlace)
{
    const std::size_t changed = queue.SetLooping(loop, firstPlace);
    Write(changed, -static_cast<std::int64_t>(changed));
}

} // namespace sprout
