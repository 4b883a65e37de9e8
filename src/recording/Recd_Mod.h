// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

#include "base/WaveData.h"

namespace sprout {

/// The last recorded sound.
///
/// The arrays run from 0 to `RecdLength`; element 0 is the first captured sample. Waves begin at element 1, so this one
/// sample is lost when the arrays become a wave. This is intended.
struct RecdState {
    std::int32_t RecdBits = 16;
    std::int32_t RecdChannels = 2;
    std::int32_t RecdRate = 44100;
    Channel RecdWavL;
    Channel RecdWavR;
    std::int32_t RecdLength = 0; ///< below 1: nothing was recorded
};

/// The one shared instance.
[[nodiscard]] RecdState& Recd();

/// Fills the shared arrays from the raw files of a capture, 16 bits, low byte first, and deletes both.
///
/// If the left file is missing or shorter than 2 bytes, the arrays stay unchanged. If the right one is, the right
/// channel is a copy of the left. A right file shorter than the left is padded with silence; what is longer is not
/// read. Throws `RunTimeError` if a file cannot be read and std::bad_alloc if memory runs out; arrays and files then
/// stay unchanged.
void LoadRecordedFiles(const std::filesystem::path& left, const std::filesystem::path& right);

/// Hands the shared arrays over as a wave without copying samples, and leaves them empty. `Length` is 0 if nothing was
/// recorded.
[[nodiscard]] WaveData TakeRecordedWave();

} // namespace sprout
