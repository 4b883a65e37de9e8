// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

/// Longest sound that a WAV file's header may promise without holding it, in frames: two minutes at 44,100 Hz.
inline constexpr std::int32_t kMostPromisedFrames = 5'292'000;

enum class ReadSamples { Yes, HeaderOnly };

/// A wave of length 0 in the program's format; the result of every failed sound operation.
[[nodiscard]] WaveData EmptyWave();

/// Reads a WAV file in the format of the file: PCM, 8 or 16 bits, mono or stereo, 11025, 22050 or 44100 Hz.
///
/// The chunks are not walked: channels, rate and bits are taken from bytes 22, 24 and 34, and the first "data" in any
/// letter case from byte 35 on begins the sound. What the file cannot fill of the promised length is zero bytes. Of
/// every failure the user is told in a message, save of a blank path and a missing file; the result is `EmptyWave`.
/// With `ReadSamples::HeaderOnly` format and length are set, and no samples.
[[nodiscard]] WaveData LoadWaveFile(const std::filesystem::path& path, ReadSamples samples = ReadSamples::Yes);

/// The same; nothing where a failure was told, or there is no such file.
[[nodiscard]] std::optional<WaveData> TryLoadWaveFile(const std::filesystem::path& path,
                                                      ReadSamples samples = ReadSamples::Yes);

/// False where a wave can be no file, which is told: no name, no sound, or an unknown format.
[[nodiscard]] bool MayWriteWave(const WaveData& wave, const std::filesystem::path& path);

/// Writes `wave` as a canonical WAV file with a header of 44 bytes. Failures are told in a message. An empty wave or
/// one of an unknown format leaves an existing file untouched; an 8-bit sample outside -128..127 ends the write where
/// it stands.
void SaveWaveFile(const WaveData& wave, const std::filesystem::path& path);

/// The block of numbers that stands for a wave in songs and tunes: index of the last element, `Bits`, `Channels`,
/// `Rate`, `Length`, then each channel's samples, two to an element.
[[nodiscard]] std::vector<std::int32_t> WaveToLongs(const WaveData& wave);

/// The wave of such a block; `EmptyWave` for a single element. Throws `RunTimeError` where the block holds less than it
/// promises.
[[nodiscard]] WaveData LongsToWave(std::span<const std::int32_t> longs);

/// Frames `first` to `last` of a wave, both inclusive. A last below first - 1 gives length 0. Throws `RunTimeError` for
/// frames that the wave does not have.
[[nodiscard]] WaveData CutWaveSlice(const WaveData& source, std::int32_t first, std::int32_t last);

/// A beep of 0.2 s that glides from 650 to 700 Hz and fades out: the sound of a beat that cannot be found. A failure is
/// told in a message and gives `EmptyWave`.
[[nodiscard]] WaveData MakeTestTone();

} // namespace sprout
