// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/ByteCursor.h"

namespace sprout {

/// Bytes of the shortest WAV file: a head of 44 and at least one of sound.
inline constexpr std::uint64_t kSmallestWave = 45;

/// What the head of a WAV file tells at its fixed places, whatever stands there.
struct WaveFields {
    std::int32_t FormatTag = 0; ///< 1 for PCM
    std::int32_t Channels = 0;
    std::int32_t Rate = 0;
    std::int32_t Bits = 0;
};

/// The fields of a source of at least `kSmallestWave` bytes. Of the channels and bits the low byte counts alone.
[[nodiscard]] WaveFields ReadWaveFields(ByteSource& source);

/// Byte of the "data", in any letter case, that begins the sound; 0 where there is none.
[[nodiscard]] std::uint64_t FindWaveData(ByteSource& source);

/// The size that stands behind the "data" at byte `place`. Throws `RunTimeError` where the file ends before.
[[nodiscard]] std::int32_t ReadWaveDataSize(ByteSource& source, std::uint64_t place);

} // namespace sprout
