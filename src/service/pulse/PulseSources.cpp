// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/PulseSources.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "base/Numbers.h"
#include "base/Text.h"
#include "service/pulse/PulseLibrary.h"

namespace sprout {

namespace {

constexpr std::size_t kMostListed = 50;
constexpr std::size_t kListBytes = 3200;

/// What has arrived of an answer.
struct Answer {
    PulseConnection& connection;
    PulseSources sources;
    bool isWhole = false;
};

std::string TextOf(const char* text)
{
    return text ? text : "";
}

void OnSource(pa_context* /*context*/, const pa_source_info* source, int isLast, void* data)
{
    auto* answer = static_cast<Answer*>(data);
    if (isLast != 0) {
        answer->isWhole = true;
        return answer->connection.Notify();
    }
    const std::uint32_t* const volumes = &source->volume.values[0];
    answer->sources.Sources.push_back({TextOf(source->name),
                                       TextOf(source->description),
                                       source->index,
                                       source->monitor_of_sink != PA_INVALID_INDEX,
                                       source->mute != 0,
                                       {volumes, volumes + std::min<int>(source->volume.channels, PA_CHANNELS_MAX)}});
}

void OnServer(pa_context* /*context*/, const pa_server_info* server, void* data)
{
    auto* answer = static_cast<Answer*>(data);
    if (!server)
        return;
    answer->sources.Default = TextOf(server->default_source_name);
    answer->sources.IsPipeWire = TextOf(server->server_name).find("PipeWire") != std::string::npos;
}

std::string NameForPeople(const PulseSource& source)
{
    return Trim(source.Description).empty() ? source.Name : source.Description;
}

std::size_t ListBytes(const PulseSource& source)
{
    return NameForPeople(source).size() + 1;
}

std::uint32_t Loudest(const PulseSource& source)
{
    return source.Volumes.empty() ? 0 : *std::max_element(source.Volumes.begin(), source.Volumes.end());
}

/// The source of that name that is not a monitor; null if there is none.
const PulseSource* Find(const PulseSources& sources, std::string_view name)
{
    const auto found = std::find_if(sources.Sources.begin(), sources.Sources.end(), [&](const PulseSource& source) {
        return !source.IsMonitor && source.Name == name;
    });
    return found == sources.Sources.end() ? nullptr : &*found;
}

} // namespace

std::optional<PulseSources> AskForSources(PulseConnection& connection, PulseConnection::Lock& lock,
                                          PulseConnection::Time deadline)
{
    Answer answer{connection, {}};
    // The server answers questions in order.
    pa_operation* const server = Pulse().ContextGetServerInfo(connection.Context(), OnServer, &answer);
    pa_operation* const list = Pulse().ContextGetSourceInfoList(connection.Context(), OnSource, &answer);
    const bool isWhole = connection.WaitForAnswer(lock, deadline, list, answer.isWhole);
    if (server) {
        Pulse().OperationCancel(server);
        Pulse().OperationUnref(server);
    }
    return isWhole ? std::optional(std::move(answer.sources)) : std::nullopt;
}

std::vector<PulseSource> ListedSources(const PulseSources& sources, const std::string& wanted)
{
    std::vector<PulseSource> listed;
    const PulseSource* const reserved = Find(sources, wanted);
    std::size_t bytes = reserved ? ListBytes(*reserved) : 0;
    std::size_t count = reserved ? 1 : 0;
    for (const PulseSource& source : sources.Sources) {
        if (&source == reserved) {
            listed.push_back(source);
            continue;
        }
        if (source.IsMonitor || count == kMostListed || bytes + ListBytes(source) > kListBytes)
            continue;
        listed.push_back(source);
        bytes += ListBytes(source);
        ++count;
    }
    return listed;
}

std::string SourceToRecord(const PulseSources& sources, const std::string& wanted)
{
    for (const std::string& name : {wanted, sources.Default})
        if (Find(sources, name))
            return name;
    const auto first = std::find_if(sources.Sources.begin(), sources.Sources.end(),
                                    [](const PulseSource& source) { return !source.IsMonitor; });
    return first == sources.Sources.end() ? "" : first->Name;
}

SoundSource ShownSource(const PulseSource& source)
{
    const double share = std::min(1.0, static_cast<double>(Loudest(source)) / PA_VOLUME_NORM);
    return {NameForPeople(source), source.IsMuted ? 0 : RoundHalfEven(share * kFullVolume)};
}

std::vector<std::uint32_t> VolumesAt(const PulseSource& source, std::int32_t volume)
{
    const double wanted = std::clamp<double>(volume, 0, kFullVolume) / kFullVolume * PA_VOLUME_NORM;
    const std::uint32_t loudest = Loudest(source);
    std::vector<std::uint32_t> volumes = source.Volumes;
    for (std::uint32_t& channel : volumes) {
        const double share = loudest == 0 ? 1 : static_cast<double>(channel) / loudest;
        channel = static_cast<std::uint32_t>(std::lround(share * wanted));
    }
    return volumes;
}

} // namespace sprout
