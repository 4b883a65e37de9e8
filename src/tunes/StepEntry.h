// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "base/Longs.h"
#include "core/Song.h"

namespace sprout {

// The steps of a tune as songs and tunes hold them: their count, and `OnPos`, `PitchShift`, `Duration` and `Volume` of
// each.

inline constexpr std::int64_t kStepEntryElements = 4;

void WriteStepEntry(LongsWriter& data, const TuneStep& step);

/// Throws `RunTimeError` where the array ends before the entry does.
void ReadStepEntry(LongsReader& data, TuneStep& step);

/// Makes `Steps` as many as the next element tells. stepElements: elements that each of them takes. Throws
/// `RunTimeError` for a count that cannot be there.
void MakeSteps(LongsReader& data, Tune& tune, std::int64_t stepElements);

} // namespace sprout
