// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

/// Longest sound that a WAV header may promise if the file does not contain all of it, in frames: two minutes at 44,100
/// Hz.
inline constexpr std::int32_t kMostPromisedFrames = 5'292'000;

enum class ReadSamples { Yes, HeaderOnly };

/// A wave of length 0 in the program's format; the result of every failed sound operation.
[[nodiscard]] WaveData EmptyWave();

/// Reads a WAV file in its own format: PCM, 8 or 16 bits, mono or stereo, 11025, 22050 or 44100 Hz.
///
/// Chunks are not walked: channels, rate and bits come from bytes 22, 24 and 34, and the sound begins at the first
/// "data", in any letter case, from byte 35 on. If the file is shorter than promised, the rest is zero bytes. Every
/// failure is shown to the user, except a blank path and a missing file; the result is then `EmptyWave`.
/// `ReadSamples::HeaderOnly` sets format and length, but no samples.
[[nodiscard]] WaveData LoadWaveFile(const std::filesystem::path& path, ReadSamples samples = ReadSamples::Yes);

/// The same; returns nothing after a failure, which is shown, or if the file does not exist.
[[nodiscard]] std::optional<WaveData> TryLoadWaveFile(const std::filesystem::path& path,
                                                      ReadSamples samples = ReadSamples::Yes);

/// Returns false, and tells the user, if a wave cannot be written: no name, no sound or an unknown format.
[[nodiscard]] bool MayWriteWave(const WaveData& wave, const std::filesystem::path& path);

/// Writes `wave` as a canonical WAV file with a 44-byte header. Failures are shown in a message. An empty wave or one
/// of an unknown format leaves an existing file untouched; the write stops at an 8-bit sample outside -128..127.
void SaveWaveFile(const WaveData& wave, const std::filesystem::path& path);

/// The block of numbers for a wave in songs and tunes: index of the last element, `Bits`, `Channels`, `Rate`, `Length`,
/// then each channel's samples, two per element.
[[nodiscard]] std::vector<std::int32_t> WaveToLongs(const WaveData& wave);

/// The wave of such a block; `EmptyWave` for a single element. Throws `RunTimeError` if the block is shorter than it
/// promises.
[[nodiscard]] WaveData LongsToWave(std::span<const std::int32_t> longs);

/// Frames `first` to `last` of a wave, both inclusive. Length 0 if `last` is below `first` - 1. Throws `RunTimeError`
/// for frames that the wave does not have.
[[nodiscard]] WaveData CutWaveSlice(const WaveData& source, std::int32_t first, std::int32_t last);

/// A beep of 0.2 s that glides from 650 to 700 Hz and fades out: the sound of a missing beat. A failure is shown in a
/// message and gives `EmptyWave`.
[[nodiscard]] WaveData MakeTestTone();

} // namespace sprout
