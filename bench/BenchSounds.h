// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

/// Frames of a full song at the reference tempo: 240 seconds.
inline constexpr std::int32_t kFullSongFrames = 240 * 44100;
inline constexpr int kMixedWaves = 20;

/// Stereo waves of a full song's length: tones with different pitches and slow swells, soft enough not to clip
/// together. Made once.
[[nodiscard]] const std::vector<WaveData>& FullSongWaves();

/// A plucked string of one second, mono; each number gives a different pitch.
[[nodiscard]] WaveData PluckedSecond(int number);

/// A song of audio tracks whose file takes about `bytes`.
void MakeLargeSong(std::int64_t bytes);

/// Replaces the shared song with one of 20 painted tracks of 240 s with 100 distinct steps of 1 s.
void MakeFullSong();

} // namespace sprout
