// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/StepEntry.h"

#include "core/SongSizes.h"

namespace sprout {

void WriteStepEntry(LongsWriter& data, const TuneStep& step)
{
    data.Put(step.OnPos);
    data.Put(step.PitchShift);
    data.Put(step.Duration);
    data.Put(step.Volume);
}

void ReadStepEntry(LongsReader& data, TuneStep& step)
{
    step.OnPos = data.Get();
    step.PitchShift = data.Get();
    step.Duration = data.Get();
    step.Volume = data.Get();
}

void MakeSteps(LongsReader& data, Tune& tune, std::int64_t stepElements)
{
    const std::int32_t count = data.Get();
    data.Require(count, stepElements);
    ResizeSteps(tune, count);
}

void SkipSteps(LongsReader& data, std::int64_t stepElements)
{
    const std::int32_t count = data.Get();
    data.SkipMany(count, stepElements);
}

} // namespace sprout
