// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

// The steps of a tune in songs and tunes: their count, and `OnPos`, `PitchShift`, `Duration` and `Volume` of each.

inline constexpr std::int64_t kStepEntryElements = 4;

void WriteStepEntry(LongsWriter& data, const TuneStep& step);

/// Throws `RunTimeError` if the array ends before the entry does.
void ReadStepEntry(LongsReader& data, TuneStep& step);

/// Resizes `Steps` to the count in the next element. stepElements: elements per step. Throws `RunTimeError` if the
/// count is impossible.
void MakeSteps(LongsReader& data, Tune& tune, std::int64_t stepElements);

/// Moves behind that count and the steps, with the same errors.
void SkipSteps(LongsReader& data, std::int64_t stepElements);

} // namespace sprout
