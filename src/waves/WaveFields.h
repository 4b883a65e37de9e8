// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/ByteCursor.h"

namespace sprout {

/// Bytes of the shortest WAV file: a head of 44 and at least one byte of sound.
inline constexpr std::uint64_t kSmallestWave = 45;

/// The fields at fixed places in the head of a WAV file, whatever their content.
struct WaveFields {
    std::int32_t FormatTag = 0; ///< 1 for PCM
    std::int32_t Channels = 0;
    std::int32_t Rate = 0;
    std::int32_t Bits = 0;
};

/// The fields of a source of at least `kSmallestWave` bytes. Only the low byte of the channels and bits counts.
[[nodiscard]] WaveFields ReadWaveFields(ByteSource& source);

/// Position of the "data", in any letter case, where the sound begins; 0 if there is none.
[[nodiscard]] std::uint64_t FindWaveData(ByteSource& source);

/// The size after the "data" at byte `place`. Throws `RunTimeError` if the file ends too early.
[[nodiscard]] std::int32_t ReadWaveDataSize(ByteSource& source, std::uint64_t place);

} // namespace sprout
