// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/sdl/PcmFeed.h"

#include <algorithm>
#include <limits>
#include <thread>

namespace sprout {

namespace {

constexpr std::int64_t kUnknown = std::numeric_limits<std::int64_t>::min();
constexpr double kNanosecondsASecond = 1e9;

std::int64_t Nanoseconds(PcmFeed::Time time)
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(time.time_since_epoch()).count();
}

} // namespace

PcmFeed::PcmFeed(const SoundFormat& soundFormat, std::int64_t queued)
    : format(soundFormat), queuedFrames(queued), sound(format), timeOfFrame0(kUnknown), firstTaken(kUnknown)
{
}

void PcmFeed::Load(std::span<const std::byte> pcm, std::size_t soundBytes)
{
    Stop();
    sound.Load(pcm, soundBytes);
    place = 0;
    framesHanded = 0;
    framesHeard = 0;
}

void PcmFeed::Start(StartFrom from, Loop loop)
{
    Stop();
    if (from == StartFrom::Beginning) {
        place = 0;
        framesHanded = 0;
        framesHeard = 0;
        firstTaken = kUnknown;
    }
    ended = false;
    looping = loop == Loop::Yes;
    timeOfFrame0 = kUnknown;
    playing = sound.Size() > 0;
}

void PcmFeed::Stop()
{
    playing = false;
    while (filling)
        std::this_thread::yield();
}

void PcmFeed::SetLooping(Loop loop)
{
    looping = loop == Loop::Yes;
}

SoundPlace PcmFeed::PlaceAt(Time now)
{
    const bool plays = playing;
    const std::int64_t origin = timeOfFrame0;
    const std::int64_t handed = framesHanded;
    if (origin != kUnknown) {
        const double seconds = static_cast<double>(Nanoseconds(now) - origin) / kNanosecondsASecond;
        const auto heard = static_cast<std::int64_t>(seconds * format.Rate);
        framesHeard = std::max(framesHeard, std::min(heard, handed - 1));
    }
    const auto soundFrames = static_cast<std::int64_t>(sound.Size()) / format.FrameBytes();
    return {static_cast<std::int32_t>(soundFrames == 0 ? 0 : framesHeard % soundFrames), plays};
}

std::optional<PcmFeed::Time> PcmFeed::FirstTaken() const
{
    const std::int64_t taken = firstTaken;
    if (taken == kUnknown)
        return std::nullopt;
    return Time(std::chrono::duration_cast<Time::duration>(std::chrono::nanoseconds(taken)));
}

void PcmFeed::Fill(std::span<std::byte> out, Time now)
{
    filling = true;
    const bool settles = asksToSettle > 0;
    if (settles)
        --asksToSettle;
    const std::size_t filled = playing && !settles ? FillFromSound(out, now) : 0;
    filling = false;
    const auto rest = out.subspan(filled);
    std::fill(rest.begin(), rest.end(), SilenceOf(format));
}

std::size_t PcmFeed::FillFromSound(std::span<std::byte> out, Time now)
{
    if (ended || (place == sound.Size() && !looping)) {
        playing = false;
        return 0;
    }
    const std::int64_t handed = framesHanded;
    if (handed == 0)
        firstTaken = Nanoseconds(now);
    const double aheadSeconds = static_cast<double>(handed - queuedFrames) / format.Rate;
    timeOfFrame0 = Nanoseconds(now) - static_cast<std::int64_t>(aheadSeconds * kNanosecondsASecond);
    std::size_t filled = 0;
    while (filled < out.size() && !ended) {
        if (place == sound.Size() && looping)
            place = 0;
        const std::size_t bytes = sound.CopyFrom(place, out.subspan(filled));
        place += bytes;
        filled += bytes;
        ended = bytes == 0;
    }
    framesHanded = handed + static_cast<std::int64_t>(filled) / format.FrameBytes();
    return filled;
}

} // namespace sprout
