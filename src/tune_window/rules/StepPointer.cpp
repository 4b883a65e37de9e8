// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepPointer.h"

namespace sprout {

namespace {

constexpr std::string_view kLampHint = "Click on a step to make in ON/OFF";
constexpr std::string_view kKeyHint = "Click on a piano key to change pitch";
constexpr std::string_view kIconHint = "Click on the icon to choose an instrument beat";
constexpr std::string_view kVolumeHint = "Volume Slider, Click on the slider to change Volume";
constexpr std::string_view kDurationHint = "Duration slider, Click on the slider to change Duration";
constexpr std::string_view kNoBeatToolTip = "Click here";

std::string_view StripHint(StripPlace place)
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
        return {StepCursor::Normal, kIconHint, step.StepBeat.Name.empty() ? kNoBeatToolTip : "", step.StepBeat.Name};
    if (zone == StepZone::Strip)
        return {StepCursor::PianoCursorImg, StripHint(StripPlaceAt(number, stepsLeft, x)), {}, {}};
    return {StepCursor::PianoCursorImg, kKeyHint, {}, {}};
}

std::string StepInWords(const TuneStep& step, std::int32_t number, std::string_view beat)
{
    const std::string words = "Step " + std::to_string(number);
    if (!step.IsOn())
        return words + ", off";
    const std::string instrument(beat.empty() ? "no instrument" : beat);
    return words + ", on, " + instrument + ", pitch " + std::to_string(step.PitchShift);
}

} // namespace sprout
