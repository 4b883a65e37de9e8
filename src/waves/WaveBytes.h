// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/WaveData.h"

namespace sprout {

/// Size of a WAV file's head.
inline constexpr std::size_t kWaveHeadBytes = 44;

// The formats of the program's WAV files: 1 or 2 channels, 11025, 22050 or 44100 Hz, 8 or 16 bits.
[[nodiscard]] inline bool IsKnownChannels(std::int32_t channels)
{
    return channels == 1 || channels == 2;
}
[[nodiscard]] inline bool IsKnownRate(std::int32_t rate)
{
    return rate == 11025 || rate == 22050 || rate == 44100;
}
[[nodiscard]] inline bool IsKnownBits(std::int32_t bits)
{
    return bits == 8 || bits == 16;
}
[[nodiscard]] inline bool IsKnownFormat(const WaveData& wave)
{
    return IsKnownChannels(wave.Channels) && IsKnownRate(wave.Rate) && IsKnownBits(wave.Bits);
}

/// Bytes of one frame in a file.
[[nodiscard]] inline std::int32_t FrameBytes(const WaveData& wave)
{
    return wave.Bits / 8 * wave.Channels;
}

/// The head of a WAV file in the format of `wave`; its two sizes are still 0.
[[nodiscard]] std::array<std::byte, kWaveHeadBytes> WaveHead(const WaveData& wave);

/// Fills in the sizes of a head that is followed by `dataBytes` of samples.
void SetWaveSizes(std::span<std::byte, kWaveHeadBytes> head, std::int32_t dataBytes);

/// Throws `RunTimeError` if a wave has fewer frames than its `Length`, such as one that was read without samples.
void CheckFrames(const WaveData& wave);

/// Writes the frames of `wave` from `firstFrame` (>= 1) on in file format, as many as fit into `bytes`: interleaved,
/// left first; 8 bits as sample + 128, 16 bits with the low byte first.
///
/// All of them must exist. Throws `RunTimeError` for an 8-bit sample outside -128..127; `bytes` is then partly written.
void PackFrames(const WaveData& wave, std::int32_t firstFrame, std::span<std::byte> bytes);

} // namespace sprout
