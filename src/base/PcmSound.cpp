// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/PcmSound.h"

#include <algorithm>

namespace sprout {

std::byte SilenceOf(const SoundFormat& format)
{
    return format.Bits == 8 ? std::byte{0x80} : std::byte{0};
}

void PcmSound::Load(std::span<const std::byte> pcm, std::size_t soundBytes)
{
    const std::size_t whole = soundBytes - soundBytes % static_cast<std::size_t>(format.FrameBytes());
    bytes.reserve(whole);
    const auto taken = pcm.first(std::min(pcm.size(), whole));
    bytes.assign(taken.begin(), taken.end());
    bytes.resize(whole, SilenceOf(format));
}

std::size_t PcmSound::CopyFrom(std::size_t place, std::span<std::byte> out) const
{
    const auto copied = std::span(bytes).subspan(place).first(std::min(out.size(), bytes.size() - place));
    std::copy(copied.begin(), copied.end(), out.begin());
    return copied.size();
}

} // namespace sprout
