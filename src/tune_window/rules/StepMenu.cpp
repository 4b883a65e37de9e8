// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/rules/StepMenu.h"

#include <algorithm>

#include "core/SongChanges.h"

namespace sprout {

namespace {

constexpr StepMenuRefusal kNextStepIsOn{Words::Later("Next step is ON,"), Words::Later("Can not move this."),
                                        Words::Later("Move Failed!")};
constexpr StepMenuRefusal kLastStepIsOn{Words::Later("Last step is ON,"), Words::Later("Can not move that to insert."),
                                        Words::Later("Insert Step Failed!")};

auto FirstStep(Tune& tune)
{
    return tune.Steps.begin() + 1;
}

auto BehindLastStep(Tune& tune)
{
    return FirstStep(tune) + tune.StepCount;
}

StepMenuRefusal MoveStep(Tune& tune, std::int32_t step, std::int32_t target)
{
    if (At(tune.Steps, target).IsOn())
        return kNextStepIsOn;
    At(tune.Steps, target) = At(tune.Steps, step);
    At(tune.Steps, step).SetOn(false);
    return {};
}

StepMenuRefusal InsertStep(Tune& tune, std::int32_t step)
{
    if (At(tune.Steps, tune.StepCount).IsOn())
        return kLastStepIsOn;
    const auto place = FirstStep(tune) + (step - 1);
    std::copy_backward(place, BehindLastStep(tune) - 1, BehindLastStep(tune));
    place->SetOn(false);
    return {};
}

StepMenuRefusal DeleteStep(Tune& tune, std::int32_t step)
{
    const auto place = FirstStep(tune) + (step - 1);
    std::copy(place + 1, BehindLastStep(tune), place);
    At(tune.Steps, tune.StepCount).SetOn(false);
    return {};
}

StepMenuRefusal Carry(Tune& tune, std::int32_t step, StepMoveMnu item)
{
    switch (item) {
    case StepMoveMnu::MoveAllToLeft:
        std::rotate(FirstStep(tune), FirstStep(tune) + 1, BehindLastStep(tune));
        return {};
    case StepMoveMnu::MoveAllToRight:
        std::rotate(FirstStep(tune), BehindLastStep(tune) - 1, BehindLastStep(tune));
        return {};
    case StepMoveMnu::MoveStepToLeft:
        return MoveStep(tune, step, step == 1 ? tune.StepCount : step - 1);
    case StepMoveMnu::MoveStepToRight:
        return MoveStep(tune, step, step == tune.StepCount ? 1 : step + 1);
    case StepMoveMnu::InsertStep:
        return InsertStep(tune, step);
    case StepMoveMnu::DeleteStep:
        return DeleteStep(tune, step);
    }
    return {};
}

} // namespace

bool StepMenuItemEnabled(StepMoveMnu item, const TuneStep& step)
{
    return step.IsOn() || (item != StepMoveMnu::MoveStepToLeft && item != StepMoveMnu::MoveStepToRight);
}

StepMenuRefusal ApplyStepMenu(Tune& tune, std::int32_t step, StepMoveMnu item)
{
    const StepMenuRefusal refusal = Carry(tune, step, item);
    if (!refusal.IsRefusal())
        SongChanges::StepsMoved(tune);
    return refusal;
}

} // namespace sprout
