// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <vector>

#include "base/WaveData.h"

namespace sprout {

// Sounds here are channels of doubles at `kRate` frames a second, full scale 1. Levels are in dB against full scale;
// silence is `kSilenceDb`.
inline constexpr double kRate = 44100;
inline constexpr double kSilenceDb = -200;

/// The samples of a wave's channel, full scale 1.
[[nodiscard]] std::vector<double> Samples(const Channel& channel);

[[nodiscard]] double Decibels(double amplitude);
[[nodiscard]] double PeakDb(std::span<const double> sound);
/// Constant part of the sound against full scale.
[[nodiscard]] double Offset(std::span<const double> sound);

/// The sound as the ear weighs it: the two filters of ITU-R BS.1770, computed for 44,100 Hz.
[[nodiscard]] std::vector<double> KWeighted(std::span<const double> sound);
/// K-weighted level of the loudest 100 ms, LUFS of a mono sound.
[[nodiscard]] double LoudestDb(std::span<const double> sound);
/// Integrated loudness of a wave in the program's format, LUFS, gated according to ITU-R BS.1770.
[[nodiscard]] double LoudnessDb(const WaveData& wave);

/// A level and where it begins.
struct Loud {
    double Db = kSilenceDb; ///< LUFS
    double Seconds = 0;     ///< from the start
};

/// The loudest second of a wave in the program's format, located to a tenth of a second.
[[nodiscard]] Loud LoudestSecond(const WaveData& wave);

/// Cents by which the sound's pitch differs from that of `key`; searches within 80 cents.
///
/// It is the mean, weighted by power, of the spectral peaks of the first four partials in frames of 93 ms of the
/// sound's first half second.
[[nodiscard]] double CentsOff(std::span<const double> sound, int key);

/// The MIDI key of the C, from C1 to C7, that the sound is tuned to; 0 if there is none.
[[nodiscard]] int SoundingC(std::span<const double> sound);

} // namespace sprout
