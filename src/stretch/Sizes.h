// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace sprout::stretch {

/// A position in a sound, or a count of its samples.
using Index = std::int64_t;

/// The engine's lengths, in samples.
///
/// They are durations that suit the ear, for 44,100 Hz; sounds at half or a quarter of that rate use halves or quarters
/// of them, so the transform's sizes stay powers of two.
struct Sizes {
    Index longWindow = 3072;    ///< tonal sound: 70 ms tells partials 29 Hz apart
    Index shortWindow = 512;    ///< noise: 12 ms keeps its level curve
    Index onsetHop = 128;       ///< energy is compared over 3 ms
    Index onsetGrain = 16;      ///< an onset is placed to 0.4 ms
    Index shortestLead = 400;   ///< an earlier onset needs no slice of its own
    Index shortestSlice = 1300; ///< least length of a new slice and of the one before it
    Index sliceLead = 44;       ///< a slice starts 1 ms ahead of its onset
    Index joinFadeIn = 22;      ///< 0.5 ms
    Index joinFadeOut = 88;     ///< 2 ms
    Index attack = 662;         ///< 15 ms from the onset on stay unchanged
    Index longestQuiet = 441;   ///< longest start before the first onset that stays unchanged like the attack: 10 ms
    Index endFade = 88;         ///< 2 ms
    Index startFade = 8;
    double lowBandHz = 400;     ///< noisy slices: up to here only the long window,
    double highBandHz = 800;    ///< from here on the short one
    double nominalRate = 44100; ///< the rate that these lengths are meant for
};

/// Sizes for sounds with `rate` samples per second: those for the nearest of 44,100, 22,050 and 11,025 Hz.
[[nodiscard]] Sizes SizesFor(std::int32_t rate);

/// Length of the result for `count` samples: count x duration, halves rounded up.
[[nodiscard]] Index ResultLength(Index count, double duration);

} // namespace sprout::stretch
