// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepEdits.h"

#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "core/SongChanges.h"
#include "core/SongSizes.h"

namespace sprout {

namespace {

constexpr std::int32_t kFarthestPitch = 64;
constexpr std::int32_t kMostPercent = 200;
constexpr double kPercentAPixel = 5;

} // namespace

void ToggleStep(Tune& tune, std::int32_t step)
{
    TuneStep& record = At(tune.Steps, step);
    record.SetOn(record.OnPos == kStepOff);
    SongChanges::StepChanged(tune, step);
}

KeyClick ClickKey(Tune& tune, std::int32_t step, std::optional<std::int32_t> pitch)
{
    std::int32_t& stored = At(tune.Steps, step).PitchShift;
    if (!pitch || stored > kFarthestPitch || stored < -kFarthestPitch)
        return {};
    const bool changed = stored != *pitch;
    stored = *pitch;
    if (changed)
        SongChanges::StepChanged(tune, step);
    return {changed, true};
}

KeyClick MovePitch(Tune& tune, std::int32_t step, std::int32_t keys)
{
    const std::int32_t shown = std::clamp(At(tune.Steps, step).PitchShift, kLowestKeyPitch, kHighestKeyPitch);
    return ClickKey(tune, step, std::clamp(shown + keys, kLowestKeyPitch, kHighestKeyPitch));
}

bool ClickStrip(Tune& tune, std::int32_t step, StripPlace place, std::int32_t value)
{
    if (place == StripPlace::None)
        return false;
    TuneStep& record = At(tune.Steps, step);
    std::int32_t& stored = place == StripPlace::Volume ? record.Volume : record.Duration;
    if (stored == value)
        return false;
    stored = value;
    SongChanges::StepChanged(tune, step);
    return true;
}

bool DragDuration(TuneStep& step, double pixels)
{
    const double drawn = std::clamp(step.Duration + pixels * kPercentAPixel, 0.0, static_cast<double>(kMostPercent));
    const std::int32_t value = RoundHalfEven(drawn);
    if (value == step.Duration)
        return false;
    step.Duration = value;
    return true;
}

void ChangeStepBeat(Tune& tune, std::int32_t step, const Beat& beat)
{
    At(tune.Steps, step).StepBeat = beat;
    SongChanges::StepChanged(tune, step);
    for (std::int32_t later = step + 1; later <= tune.StepCount; ++later) {
        if (!At(tune.Steps, later).StepBeat.Name.empty())
            continue;
        At(tune.Steps, later).StepBeat = beat;
        SongChanges::StepChanged(tune, later);
    }
}

void ChangeAllBeats(Tune& tune, const Beat& beat)
{
    for (std::int32_t step = 1; step <= tune.StepCount; ++step) {
        At(tune.Steps, step).StepBeat = beat;
        SongChanges::StepChanged(tune, step);
    }
}

std::optional<std::int32_t> TypedStepCount(std::string_view answer)
{
    const double number = std::nearbyint(NumberPrefix(answer)); // half to even
    if (!(number >= kFewestSteps && number <= kMostSteps))
        return std::nullopt;
    return static_cast<std::int32_t>(number);
}

void ChangeStepCount(Tune& tune, std::int32_t count)
{
    const std::int32_t before = tune.StepCount;
    ResizeSteps(tune, count);
    // A new step may copy another new one.
    if (before > 0)
        for (std::int32_t step = before + 1; step <= count; ++step)
            At(tune.Steps, step) = At(tune.Steps, step - before);
    SongChanges::StepCountChanged(tune);
}

} // namespace sprout
