// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneChoice.h"

#include "core/Shared.h"
#include "sound/PlayMod.h"
#include "tune_window/rules/StepEdits.h"
#include "tunes/ChosenTune.h"
#include "tunes/TuneTable.h"

namespace sprout {

namespace {

constexpr std::int32_t kNothingChosen = -1;

} // namespace

bool TuneChoice::HasTune() const
{
    return IsInTuneTable(selected);
}

void TuneChoice::Find(std::string_view name)
{
    selected = FindInTuneTable(name);
    if (selected == 0 && !name.empty())
        ChooseNothing();
}

bool TuneChoice::ChooseFirstIfOpen()
{
    if (selected != 0 || Shared().TuneTableCount < 1)
        return false;
    Choose(1);
    Shared().TuneInfoDefault.CreatedBy = chosen.CreatedBy;
    Shared().TuneInfoDefault.Name = "Lumo";
    return Play();
}

void TuneChoice::Choose(std::int32_t index)
{
    selected = index;
    startedWithEditor = false;
    chosen = At(Shared().TuneTable, index);
}

void TuneChoice::TakeEditorsTune(std::int32_t index)
{
    selected = index;
    chosen = Shared().CurrentTune;
}

void TuneChoice::ChooseNothing()
{
    selected = kNothingChosen;
}

bool TuneChoice::Play()
{
    if (!HasTune())
        return false;
    const bool keepsSound = LoadChosenTune(chosen);
    if (chosen.TuneWaveValid)
        PlayWaveDelayed(chosen.TuneWave, kTuneLeadIn, Words::Text("Playing Tune"), Loop::No);
    return keepsSound;
}

void TuneChoice::KeepSound() const
{
    KeepChosenTune(chosen);
}

} // namespace sprout
