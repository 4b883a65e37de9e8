// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/HeardPlace.h"

#include <algorithm>

namespace sprout {

namespace {

/// For how long the last report is trusted to detect a sound's end: the device may have stalled since.
constexpr std::chrono::milliseconds kTrustedAtEnd{50};

} // namespace

void HeardPlace::StartAnew()
{
    GoOn();
    takenAtPlace0.reset();
}

void HeardPlace::GoOn()
{
    heard.reset();
    takenAtStart.reset();
}

void HeardPlace::DeviceStarted(std::int64_t taken)
{
    takenAtStart = taken;
    if (!takenAtPlace0)
        takenAtPlace0 = taken - place;
}

void HeardPlace::DeviceStopped(std::int64_t taken)
{
    if (takenAtPlace0)
        place = std::max<std::int64_t>(0, taken - *takenAtPlace0);
}

void HeardPlace::Report(Time time, std::int64_t taken, std::chrono::nanoseconds unheard)
{
    if (takenAtStart && taken > *takenAtStart)
        heard = Heard{time, taken - *takenAtPlace0 - BytesOf(format, unheard)};
}

EndHeard HeardPlace::Follow(Time now, const SoundQueue& queue)
{
    if (!heard)
        return EndHeard::No;
    const auto age = now - heard->time;
    const std::int64_t playedOn = std::min({heard->place + BytesOf(format, age), queue.Filled(), queue.End()});
    place = std::max(place, playedOn);
    if (!queue.EndsBy(place))
        return EndHeard::No;
    const bool isTrusted = age <= kTrustedAtEnd;
    if (queue.EndsBy(isTrusted ? playedOn : heard->place))
        return EndHeard::Yes;
    return isTrusted ? EndHeard::No : EndHeard::Unknown;
}

} // namespace sprout
