// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout {

/// Format of PCM samples: 8 bits unsigned or 16 bits signed with the low byte first; stereo interleaved, left first.
struct SoundFormat {
    std::int32_t Channels = 2; ///< 1 or 2
    std::int32_t Rate = 44100; ///< frames per second: 11025, 22050 or 44100
    std::int32_t Bits = 16;    ///< 8 or 16

    [[nodiscard]] std::int32_t FrameBytes() const { return Channels * Bits / 8; }
    friend bool operator==(const SoundFormat&, const SoundFormat&) = default;
};

} // namespace sprout
