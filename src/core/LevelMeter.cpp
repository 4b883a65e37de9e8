// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/LevelMeter.h"

#include <algorithm>
#include <cstdlib>

namespace sprout {

namespace {

constexpr std::int32_t kFullScale = 32767;
constexpr int kOverload = 3;

} // namespace

void ChannelMeter::Add(std::int16_t sample)
{
    if (inside == kMeterPieceFrames) {
        piece = (piece + 1) % kMeterPieces;
        peaks[piece] = 0;
        inside = 0;
    }
    ++inside;
    const std::int32_t level = std::min(std::abs(static_cast<std::int32_t>(sample)), kFullScale);
    peaks[piece] = std::max(peaks[piece], level);
    fullScale = level == kFullScale ? fullScale + 1 : 0;
    overloaded = overloaded || fullScale >= kOverload;
}

std::int32_t ChannelMeter::Peak() const
{
    return *std::max_element(peaks.begin(), peaks.end());
}

bool LevelMeter::Add(std::span<const std::int16_t> samples)
{
    bool sounds = false;
    for (std::size_t i = 0; i + 1 < samples.size(); i += 2) {
        left.Add(samples[i]);
        right.Add(samples[i + 1]);
        sounds = sounds || samples[i] != 0 || samples[i + 1] != 0;
    }
    return sounds;
}

} // namespace sprout
