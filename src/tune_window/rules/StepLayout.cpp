// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepLayout.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Numbers.h"

namespace sprout {

namespace {

/// Rows of a zone, both ends excluded.
struct ZoneRows {
    StepZone zone;
    std::int32_t above;
    std::int32_t below;
};

constexpr std::array kZones{
    ZoneRows{StepZone::Lamp, kLampTop, 39},
    ZoneRows{StepZone::Icon, kIconTop, 111},
    ZoneRows{StepZone::UpperOctave, kUpperOctaveTop, kLowerOctaveTop},
    ZoneRows{StepZone::LowerOctave, kLowerOctaveTop, 285},
    ZoneRows{StepZone::Strip, 291, kBottomOfZones},
};

constexpr std::int32_t kPlaceWidth = 2; ///< of the places in the strip
constexpr double kStripPercent = 200;
constexpr double kStripRows = 7;
constexpr double kSurfaceLeftFree = 0.8; ///< share of the surface that steps fill at the end of scrolling
constexpr std::int32_t kLeastScroll = 10;

} // namespace

std::int32_t StepLeft(std::int32_t step, std::int32_t stepsLeft)
{
    return (step - 1) * kStepPitch + stepsLeft;
}

std::int32_t StepAt(std::int32_t x, std::int32_t stepsLeft, std::int32_t stepCount)
{
    const std::int32_t inRow = x - stepsLeft;
    const std::int32_t step = inRow / kStepPitch + 1;
    const std::int32_t inColumn = inRow % kStepPitch; // 0 or below left of the first column
    return step <= stepCount && inColumn > 0 && inColumn < kStepHitWidth ? step : 0;
}

StepZone StepZoneAt(std::int32_t y)
{
    const auto* found = std::find_if(kZones.begin(), kZones.end(),
                                     [y](const ZoneRows& rows) { return rows.above < y && y < rows.below; });
    return found == kZones.end() ? StepZone::None : found->zone;
}

std::optional<std::int32_t> PitchAt(std::int32_t step, std::int32_t stepsLeft, std::int32_t x, std::int32_t y)
{
    const StepZone zone = StepZoneAt(y);
    if (!IsOctave(zone))
        return std::nullopt;
    const bool upper = zone == StepZone::UpperOctave;
    const std::int32_t key = KeyAt(x - StepLeft(step, stepsLeft), y - (upper ? kUpperOctaveTop : kLowerOctaveTop));
    if (key == kNoKey)
        return std::nullopt;
    return PitchOfKey(upper ? Octave::Upper : Octave::Lower, key);
}

FrameEdges IconFrame(std::int32_t step, std::int32_t stepsLeft)
{
    const std::int32_t x = StepLeft(step, stepsLeft);
    return {x - 2, kIconTop - 1, x + 33, 112};
}

std::int32_t BarMiddle(std::int32_t duration)
{
    return RoundHalfEven(duration / 100.0 * kMiddleOfFullDuration);
}

DurationBar BarOfStep(std::int32_t step, std::int32_t stepsLeft, std::int32_t pitchShift, std::int32_t duration)
{
    const KeyPlace place = KeyOfPitch(pitchShift);
    const std::int32_t top = (place.octave == Octave::Upper ? kUpperOctaveTop : kLowerOctaveTop) +
                             KeyMarkY[static_cast<std::size_t>(place.key)];
    const std::int32_t left = StepLeft(step, stepsLeft) + kBarInset;
    const std::int32_t middle = BarMiddle(duration);
    // A middle of one pixel is hidden by the cap.
    const std::int32_t end = left + kDurationLeftWidth + (middle > 1 ? middle : 0);
    return {end, top, left, top, end + kDurationRightWidth, top + kBarHeight - 1};
}

std::int32_t BarAt(std::span<const DurationBar> bars, const Tune& tune, std::int32_t x, std::int32_t y)
{
    const auto count = std::min(tune.StepCount, static_cast<std::int32_t>(bars.size()) - 1);
    for (std::int32_t step = 1; step <= count; ++step) {
        const DurationBar& bar = bars[static_cast<std::size_t>(step)];
        if (At(tune.Steps, step).IsOn() && bar.left <= x && x <= bar.right && bar.top <= y && y <= bar.bottom)
            return step;
    }
    return 0;
}

StripPlace StripPlaceAt(std::int32_t step, std::int32_t stepsLeft, std::int32_t x)
{
    const std::int32_t inColumn = x - StepLeft(step, stepsLeft);
    const auto isIn = [inColumn](std::int32_t before) { return before < inColumn && inColumn <= before + kPlaceWidth; };
    if (isIn(1))
        return StripPlace::Volume;
    return isIn(kStepHitWidth - kPlaceWidth - 1) ? StripPlace::Duration : StripPlace::None;
}

std::int32_t StripValue(std::int32_t y)
{
    const std::int32_t value = RoundHalfEven((kBottomOfZones - y) * kStripPercent / kStripRows);
    if (value < 4)
        return 0;
    if (value >= 197)
        return 200;
    return value >= 97 && value <= 103 ? 100 : value;
}

StepScroll StepScrollRange(std::int32_t stepCount, std::int32_t surfaceWidth)
{
    const std::int32_t maximum = RoundHalfEven(stepCount * kStepPitch - kSurfaceLeftFree * surfaceWidth);
    return {std::max(maximum, kLeastScroll), std::max(surfaceWidth / 2, 1)};
}

std::int32_t ScrollToStep(std::int32_t step, std::int32_t value, std::int32_t surfaceWidth)
{
    const std::int32_t left = StepLeft(step, StepsLeftAt(value));
    const std::int32_t beyond = left + kStepPitch - surfaceWidth;
    const std::int32_t before = kStepsLeftAtStart - left;
    if (before > 0)
        return std::max(value - before, 1);
    return beyond > 0 ? value + beyond : value;
}

std::int32_t ChangeAllLeft(std::int32_t stepCount, std::int32_t stepsLeft)
{
    return stepCount * kStepPitch + stepsLeft + 8;
}

} // namespace sprout
