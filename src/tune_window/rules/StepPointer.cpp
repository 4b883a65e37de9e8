// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepPointer.h"

namespace sprout {

namespace {

constexpr LaterWords kLampHint = Words::Later("Click on a step to make in ON/OFF");
constexpr LaterWords kKeyHint = Words::Later("Click on a piano key to change pitch");
constexpr LaterWords kIconHint = Words::Later("Click on the icon to choose an instrument beat");
constexpr LaterWords kVolumeHint = Words::Later("Volume Slider, Click on the slider to change Volume");
constexpr LaterWords kDurationHint = Words::Later("Duration slider, Click on the slider to change Duration");
constexpr LaterWords kNoBeatToolTip = Words::Later("Click here");

LaterWords StripHint(StripPlace place)
{
    if (place == StripPlace::None)
        return {};
    return place == StripPlace::Volume ? kVolumeHint : kDurationHint;
}

} // namespace

StepPointer PointerOverSteps(const Tune& tune, std::int32_t stepsLeft, std::int32_t x, std::int32_t y)
{
    const std::int32_t number = StepAt(x, stepsLeft, tune.StepCount);
    const StepZone zone = StepZoneAt(y);
    if (number == 0 || zone == StepZone::None)
        return {};
    if (zone == StepZone::Lamp)
        return {StepCursor::Normal, kLampHint, {}, {}};
    const TuneStep& step = At(tune.Steps, number);
    if (!step.IsOn())
        return {};
    if (zone == StepZone::Icon)
        return {StepCursor::Normal, kIconHint, step.StepBeat.Name.empty() ? kNoBeatToolTip : LaterWords(),
                step.StepBeat.Name};
    if (zone == StepZone::Strip)
        return {StepCursor::PianoCursorImg, StripHint(StripPlaceAt(number, stepsLeft, x)), {}, {}};
    return {StepCursor::PianoCursorImg, kKeyHint, {}, {}};
}

Words StepInWords(const TuneStep& step, std::int32_t number, std::string_view beat)
{
    if (!step.IsOn())
        return Words::Text("Step %1, off", number);
    if (beat.empty())
        return Words::Text("Step %1, on, no instrument, pitch %2", number, step.PitchShift);
    return Words::Text("Step %1, on, %2, pitch %3", number, beat, step.PitchShift);
}

} // namespace sprout
