// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSound.h"

#include <utility>

namespace sprout {

namespace {

using std::chrono::milliseconds;

/// The time that a change takes to the server, besides what the device has already been given.
constexpr milliseconds kWayOfAChange{10};

PulseConnection::Time Now()
{
    return std::chrono::steady_clock::now();
}

} // namespace

PulseSound::PulseSound(PulseConnection& server, const SoundFormat& format, milliseconds round,
                       milliseconds tailBehindEnd)
    : connection(server),
      tailTime(tailBehindEnd),
      queue(format),
      heard(format),
      stream(server, format,
             {[this] { OnLost(); }, [this] { OnStarted(); }, [this] { OnTimed(); }, [this] { OnMoreWanted(); },
              [this](TimingQuestion question, const StreamTiming& timing) { OnAnswered(question, timing); }}),
      rounds(
          server, round, [this] { return Follow() || IsStopping(); }, [this] { Close(); }),
      tail(server, [this] { OnTailHeard(); })
{
}

PulseSound::~PulseSound()
{
    const Lock lock(connection.Mutex());
    Close();
}

bool PulseSound::IsAliveIn(const SoundFormat& wanted)
{
    const Lock lock(connection.Mutex());
    return wanted == queue.Format() && (!stream.IsOpen() || stream.IsReady());
}

bool PulseSound::Wake(Time deadline)
{
    Lock lock(connection.Mutex());
    return Wake(lock, deadline);
}

bool PulseSound::Wake(Lock& lock, Time deadline)
{
    rounds.NoteUse();
    if (stream.IsReady())
        return true;
    Close();
    if (connection.Connect(lock, deadline) != ServerAnswer::Yes || !stream.Open(lock, deadline)) {
        Close();
        return false;
    }
    rounds.Start();
    return true;
}

void PulseSound::Close()
{
    rounds.Stop();
    tail.Stop();
    holdsQueue = false;
    stream.Close();
}

void PulseSound::OnLost()
{
    Follow();
    playing = false;
    holdsQueue = false;
    rounds.Stop();
    tail.Stop();
}

bool PulseSound::Ask(TimingQuestion question)
{
    const bool isAsked = stream.Ask(question);
    if (!isAsked) // too many wait at a server that hangs; the next play opens a new stream
        Close();
    return isAsked;
}

void PulseSound::OnAnswered(TimingQuestion question, const StreamTiming& timing)
{
    switch (question) {
    case TimingQuestion::AtStart:
        return heard.DeviceStarted(timing.Taken);
    case TimingQuestion::AtStop:
        return heard.DeviceStopped(timing.Taken);
    case TimingQuestion::AtEnd:
        Follow();
    }
}

void PulseSound::OnStarted()
{
    if (!playing || !heard.HasDeviceStarted())
        return;
    if (!firstTaken)
        firstTaken = Now();
    stream.UpdateTiming();
}

void PulseSound::OnTimed()
{
    if (const auto timing = stream.Timing(); playing && timing)
        heard.Report(timing->Time, timing->Taken, timing->Unheard);
}

void PulseSound::OnMoreWanted()
{
    if (Follow())
        stream.WriteWanted(queue);
}

bool PulseSound::Follow()
{
    if (!playing)
        return false;
    const EndHeard end = heard.Follow(Now(), queue);
    if (end == EndHeard::Yes)
        End();
    else if (end == EndHeard::Unknown && !stream.IsAsked(TimingQuestion::AtEnd) && !Ask(TimingQuestion::AtEnd))
        playing = false;
    return playing;
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
        stream.ForgetQuestions();
        holdsQueue = false;
        heard.Rewind();
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
        heard.Rewind();
    }
    if (!Wake(lock, Now() + kServerPatience))
        return;
    playing = holdsQueue ? GoOn(loop) : Begin(loop);
}

bool PulseSound::Begin(Loop loop)
{
    queue.Start(heard.Place(), loop);
    if (queue.EndsBy(heard.Place()))
        return false;
    stream.ForgetQuestions();
    heard.StartAnew();
    holdsQueue = true;
    if (tail.IsStarted())
        OnTailHeard();
    stream.Flush();
    if (!Ask(TimingQuestion::AtStart))
        return false;
    stream.Write(queue, static_cast<std::size_t>(BytesOf(queue.Format(), kQueuedAtServer)));
    stream.Run();
    return true;
}

bool PulseSound::GoOn(Loop loop)
{
    heard.GoOn();
    if (!Ask(TimingQuestion::AtStart))
        return false;
    ChangeLooping(loop, heard.Place());
    stream.WriteWanted(queue);
    stream.Run();
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
    stream.Stop();
    static_cast<void>(Ask(TimingQuestion::AtStop));
}

void PulseSound::End()
{
    playing = false;
    holdsQueue = false;
    // Some servers report the last frames as heard while they are still giving them to the device.
    tail.Start(tailTime);
}

void PulseSound::OnTailHeard()
{
    tail.Stop();
    stream.Stop();
}

SoundPlace PulseSound::Place()
{
    const Lock lock(connection.Mutex());
    Follow();
    return {queue.FrameAt(heard.Place()), playing};
}

void PulseSound::SetLooping(Loop loop)
{
    const Lock lock(connection.Mutex());
    if (Follow())
        ChangeLooping(loop, FirstPlaceNotGiven());
}

std::int64_t PulseSound::FirstPlaceNotGiven() const
{
    const auto timing = stream.Timing();
    const milliseconds given = timing ? std::chrono::ceil<milliseconds>(timing->Given) : kGivenAtATime;
    return heard.Place() + BytesOf(queue.Format(), given + kWayOfAChange);
}

void PulseSound::ChangeLooping(Loop loop, std::int64_t firstPlace)
{
    const std::size_t changed = queue.SetLooping(loop, firstPlace);
    stream.Write(queue, changed, -static_cast<std::int64_t>(changed));
}

} // namespace sprout
