// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseCapture.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "service/pulse/PulseLibrary.h"

namespace sprout {

namespace {

/// PipeWire starts some streams with silence or with a hole: 50 ms.
constexpr std::int64_t kUnsureFrames = 2205;

} // namespace

PulseCapture::~PulseCapture()
{
    PulseCapture::Close();
}

ServerAnswer PulseCapture::AskServer()
{
    Lock lock(connection.Mutex());
    return Connect(lock, ServerDeadline());
}

ServerAnswer PulseCapture::Connect(Lock& lock, Time deadline)
{
    if (connection.Stands())
        return ServerAnswer::Yes;
    stream.reset(); // of the lost connection
    const ServerAnswer answer = connection.Connect(lock, deadline);
    if (answer == ServerAnswer::Yes)
        FollowSources();
    return answer;
}

void PulseCapture::FollowSources()
{
    ++changes;
    Pulse().ContextSetSubscribeCallback(
        connection.Context(),
        [](pa_context*, pa_subscription_event_type_t, std::uint32_t, void* self) {
            ++static_cast<PulseCapture*>(self)->changes;
        },
        this);
    constexpr auto events =
        static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SERVER);
    Forget(Pulse().ContextSubscribe(connection.Context(), events, nullptr, nullptr));
}

CaptureOpening PulseCapture::Open(CaptureSink& captureSink)
{
    Close();
    const Time deadline = ServerDeadline();
    const CaptureOpening opening = OpenOnce(captureSink, deadline);
    // After a server restart, only the first failure reveals that the old connection is gone.
    return opening == CaptureOpening::Failed ? OpenOnce(captureSink, deadline) : opening;
}

CaptureOpening PulseCapture::OpenOnce(CaptureSink& captureSink, Time deadline)
{
    Lock lock(connection.Mutex());
    if (Connect(lock, deadline) != ServerAnswer::Yes)
        return CaptureOpening::Failed;
    const std::optional<PulseSources> sources = AskForSources(connection, lock, deadline);
    if (!sources)
        return CaptureOpening::Failed;
    isPipeWire = sources->IsPipeWire;
    const std::string name = SourceToRecord(*sources, chosen);
    if (name.empty())
        return CaptureOpening::NoMicrophone;
    stream = OpenStream(name, lock, deadline);
    if (!stream)
        return CaptureOpening::Failed;
    sink = &captureSink;
    stream->GiveTo(captureSink, nullptr);
    return CaptureOpening::Ready;
}

std::unique_ptr<PulseCaptureStream> PulseCapture::OpenStream(const std::string& name, Lock& lock, Time deadline)
{
    auto opened = std::make_unique<PulseCaptureStream>(connection);
    return opened->Open(name, isPipeWire ? kUnsureFrames : 0, lock, deadline) ? std::move(opened) : nullptr;
}

void PulseCapture::Close()
{
    const Lock lock(connection.Mutex());
    stream.reset();
}

SourceState PulseCapture::State()
{
    const Lock lock(connection.Mutex());
    return stream ? stream->State() : SourceState::Gone;
}

std::optional<SoundSources> PulseCapture::ListSources()
{
    const Time deadline = ServerDeadline();
    Lock lock(connection.Mutex());
    listed.clear();
    if (Connect(lock, deadline) != ServerAnswer::Yes)
        return std::nullopt;
    const std::optional<PulseSources> sources = AskForSources(connection, lock, deadline);
    if (!sources)
        return std::nullopt;
    const bool runs = stream && stream->State() != SourceState::Gone;
    const std::string selected = runs ? stream->Source() : SourceToRecord(*sources, chosen);
    listed = ListedSources(*sources, selected);
    SoundSources shown;
    for (const PulseSource& source : listed) {
        if (source.Name == selected)
            shown.Selected = static_cast<std::int32_t>(shown.Sources.size());
        shown.Sources.push_back(ShownSource(source));
    }
    return shown;
}

std::uint64_t PulseCapture::SourceChanges()
{
    const Lock lock(connection.Mutex());
    return 2 * changes + (connection.Stands() ? 0 : 1);
}

const PulseSource* PulseCapture::Listed(std::int32_t index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < listed.size() ? &listed[static_cast<std::size_t>(index)]
                                                                         : nullptr;
}

void PulseCapture::SelectSource(std::int32_t index)
{
    Lock lock(connection.Mutex());
    const PulseSource* const wanted = Listed(index);
    if (!wanted)
        return;
    const std::string name = wanted->Name;
    if (!stream || stream->State() == SourceState::Gone || stream->Source() == name) {
        chosen = name;
        return;
    }
    std::unique_ptr<PulseCaptureStream> other = OpenStream(name, lock, ServerDeadline());
    if (!other || !stream)
        return;
    chosen = name;
    other->GiveTo(*sink, stream.get());
    stream = std::move(other);
}

void PulseCapture::SetVolume(std::int32_t index, std::int32_t volume)
{
    const Lock lock(connection.Mutex());
    const PulseSource* const source = Listed(index);
    if (!source || !connection.Stands())
        return;
    pa_cvolume volumes{};
    for (const std::uint32_t channel : VolumesAt(*source, volume))
        volumes.values[volumes.channels++] = channel;
    pa_context* const context = connection.Context();
    Forget(Pulse().ContextSetSourceVolumeByIndex(context, source->Index, &volumes, nullptr, nullptr));
    if (volume > 0 && source->IsMuted)
        Forget(Pulse().ContextSetSourceMuteByIndex(context, source->Index, 0, nullptr, nullptr));
}

} // namespace sprout
