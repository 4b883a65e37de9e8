// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepCommand.h"

namespace sprout {

namespace {

StepCommand CommandOfLamp(std::int32_t step, StepButton button)
{
    switch (button) {
    case StepButton::Left:
        return {StepAct::ToggleLamp, step};
    case StepButton::Right:
        return {StepAct::OpenMenu, step};
    default:
        return {};
    }
}

StepCommand CommandOfOctave(std::int32_t step, StepButton button, std::optional<std::int32_t> pitch)
{
    switch (button) {
    case StepButton::Left:
        return {.act = StepAct::ClickKey, .step = step, .pitch = pitch};
    case StepButton::Right:
        return {StepAct::PlayStep, step};
    default:
        return {};
    }
}

StepCommand CommandOfStrip(std::int32_t step, StepButton button, StripPlace part, std::int32_t value)
{
    switch (button) {
    case StepButton::Left:
        return {.act = StepAct::ClickStrip, .step = step, .part = part, .amount = value};
    case StepButton::Right:
        return {StepAct::PlayStep, step};
    default:
        return {};
    }
}

} // namespace

StepCommand CommandOfPress(const Tune& tune, std::int32_t stepsLeft, StepPoint place, StepButton button)
{
    const std::int32_t step = StepAt(place.x, stepsLeft, tune.StepCount);
    if (step == 0)
        return {};
    const StepZone zone = StepZoneAt(place.y);
    if (zone == StepZone::Lamp)
        return CommandOfLamp(step, button);
    if (!At(tune.Steps, step).IsOn())
        return {};
    if (IsOctave(zone))
        return CommandOfOctave(step, button, PitchAt(step, stepsLeft, place.x, place.y));
    if (zone == StepZone::Strip)
        return CommandOfStrip(step, button, StripPlaceAt(step, stepsLeft, place.x), StripValue(place.y));
    return {};
}

StepCommand CommandOfRelease(const Tune& tune, std::int32_t stepsLeft, StepPoint down, StepPoint up, StepButton button)
{
    const std::int32_t step = StepAt(up.x, stepsLeft, tune.StepCount);
    const bool inOneIcon = step != 0 && StepZoneAt(up.y) == StepZone::Icon && StepZoneAt(down.y) == StepZone::Icon &&
                           StepAt(down.x, stepsLeft, tune.StepCount) == step;
    if (!inOneIcon || !At(tune.Steps, step).IsOn())
        return {};
    switch (button) {
    case StepButton::Left:
        return {StepAct::ChooseBeat, step};
    case StepButton::Right:
        return {StepAct::PlayBeat, step};
    default:
        return {};
    }
}

} // namespace sprout
