// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

/// Frames of a full song at the reference tempo: 240 seconds.
inline constexpr std::int32_t kFullSongFrames = 240 * 44100;
inline constexpr int kMixedWaves = 20;

/// Stereo waves of a full song's length: tones of their own pitch under slow swells, soft enough that all of them
/// together do not clip. Made once.
[[nodiscard]] const std::vector<WaveData>& FullSongWaves();

/// A plucked string of one second, mono; each number gives another pitch.
[[nodiscard]] WaveData PluckedSecond(int number);

/// A song file's worth of sound: a song of audio tracks that fills about `bytes`.
void MakeLargeSong(std::int64_t bytes);

/// Makes the shared song one of 20 painted tracks of 240 s with 100 distinct steps of 1 s.
void MakeFullSong();

} // namespace sprout
