// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

#include "base/WaveData.h"
#include "core/Song.h"

namespace sprout {

/// One beat as it sounds.
struct BeatFacts {
    std::string Name;
    double Seconds = 0;
    double PeakDb = 0;
    double LoudestDb = 0;
    double OnsetSeconds = 0;
    double EndDb = 0;
    double Offset = 0;
    int Key = 0;              ///< the C that it is tuned to; 0 if it has no pitch
    double CentsOff = 0;      ///< deviation from that key
    std::uintmax_t Bytes = 0; ///< of its .wav
};

/// One song as it sounds.
struct SongFacts {
    std::string Name;
    double Seconds = 0;
    int Tracks = 0;
    double PeakDb = 0;
    double LoudnessDb = 0;
    double Clash = 0; ///< share of clashing intervals, 0 to 1
};

[[nodiscard]] BeatFacts MeasureBeat(const std::string& name, const WaveData& wave);

/// Measures the shared song; mixes it first if necessary.
[[nodiscard]] SongFacts MeasureSong(const std::string& name);

/// Share of clashing intervals in a song whose steps are rendered. It counts all pairs of pitched sounds that are heard
/// at the same time, weighted by duration; a pair clashes if its pitches are 1, 2, 6, 10 or 11 semitones apart, in any
/// octave. All pitched beats of the library are on C, so a step's shift is its pitch.
[[nodiscard]] double ClashShare(const SongState& song);

/// True for beats whose family has a pitch: all but drums and fun sounds.
[[nodiscard]] bool IsPitched(const std::string& beatName);

/// Measures all beats, tunes and songs of the library in `folder`, prints the results and the broken rules. Returns the
/// number of broken rules.
int CheckLibrary(const std::filesystem::path& folder, std::ostream& out);

} // namespace sprout
