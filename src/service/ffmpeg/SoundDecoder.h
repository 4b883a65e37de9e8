// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "service/SoundReader.h"

namespace sprout {

/// Exit status of the program that reads sounds.
enum class DecodeStatus { Done = 0, Misused = 2, TooLong = 3, Unreadable = 4, NoLibraries = 5, NotWritten = 6 };

/// Frames per second of every decoded sound.
inline constexpr std::int32_t kDecodedRate = 44100;
/// Size in bytes of the longest WAV file for `mostFrames`.
[[nodiscard]] constexpr std::uint64_t MostDecodedBytes(std::int64_t mostFrames)
{
    return 44 + static_cast<std::uint64_t>(mostFrames) * 4;
}

/// Decodes the first audio stream of a file into a WAV file with a header of 44 bytes: 44,100 Hz, 16 bits, mono as
/// mono, everything else as stereo.
///
/// from: a plain file, open for reading. to: an empty file, open for writing. Neither is closed. The sound's first
/// frame is the file's first, and its length is that of the source, rounded to the nearest frame. Damaged parts are
/// left out. A sound of more than `mostFrames` is cut or refused there, and nothing after that is decoded; the length
/// that the file claims is ignored. Throws std::bad_alloc.
[[nodiscard]] DecodeStatus DecodeSound(int from, int to, std::int64_t mostFrames, TooLong tooLong);

} // namespace sprout
