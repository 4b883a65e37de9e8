// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

#include "base/WaveData.h"

namespace sprout {

/// The sound that was recorded last.
///
/// The arrays run from 0 to `RecdLength`, and element 0 of them is the first sample that was captured. Waves begin at
/// element 1, so that this one sample is lost when they become a wave; that is wanted.
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
/// A left file that is missing or shorter than 2 bytes leaves the arrays as they are. A right one that is missing or
/// shorter than 2 bytes sounds like the left; one that is shorter than the left is silent at its end; what is longer is
/// not read. Throws `RunTimeError` where a file cannot be read and std::bad_alloc where memory is short; arrays and
/// files then stay as they are.
void LoadRecordedFiles(const std::filesystem::path& left, const std::filesystem::path& right);

/// Hands the shared arrays over as a wave, without copying a sample, and leaves none. `Length` is 0 where nothing was
/// recorded.
[[nodiscard]] WaveData TakeRecordedWave();

} // namespace sprout
