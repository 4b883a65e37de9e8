// SPDX-License-Identifier: GPL-3.0-or-later
#include "service/pulse/SoundQueue.h"

#include <algorithm>
#include <limits>

namespace sprout {

namespace {

constexpr std::int64_t kNoEnd = std::numeric_limits<std::int64_t>::max();

} // namespace

std::int64_t BytesOf(const SoundFormat& format, std::chrono::nanoseconds time)
{
    const double seconds = std::chrono::duration<double>(time).count();
    return static_cast<std::int64_t>(seconds * format.Rate) * format.FrameBytes();
}

void SoundQueue::Start(std::int64_t place, Loop loop)
{
    filled = place;
    end = loop == Loop::Yes && sound.Size() > 0 ? kNoEnd : EndOfPass(place);
}

void SoundQueue::Fill(std::span<std::byte> out)
{
    while (!out.empty() && filled < end) {
        const auto place = static_cast<std::size_t>(filled) % sound.Size();
        const std::size_t copied = sound.CopyFrom(place, out);
        filled += static_cast<std::int64_t>(copied);
        out = out.subspan(copied);
    }
    std::fill(out.begin(), out.end(), SilenceOf(Format()));
    filled += static_cast<std::int64_t>(out.size());
}

std::size_t SoundQueue::SetLooping(Loop loop, std::int64_t place)
{
    const bool loops = end == kNoEnd;
    if (loops == (loop == Loop::Yes) || EndsBy(place))
        return 0;
    const std::int64_t endOfPass = loops ? EndOfPass(place) : end;
    end = loops ? endOfPass : kNoEnd;
    const std::int64_t changed = std::max<std::int64_t>(0, filled - endOfPass);
    filled -= changed;
    return static_cast<std::size_t>(changed);
}

std::int32_t SoundQueue::FrameAt(std::int64_t place) const
{
    if (sound.Size() == 0)
        return 0;
    const std::int32_t frameBytes = Format().FrameBytes();
    const std::int64_t inside = std::min(place, end - frameBytes) % static_cast<std::int64_t>(sound.Size());
    return static_cast<std::int32_t>(inside / frameBytes);
}

std::int64_t SoundQueue::EndOfPass(std::int64_t place) const
{
    const auto size = static_cast<std::int64_t>(sound.Size());
    if (size == 0)
        return 0;
    return std::max<std::int64_t>(1, (place + size - 1) / size) * size;
}

} // namespace sprout
