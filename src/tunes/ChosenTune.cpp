// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/ChosenTune.h"

#include <algorithm>
#include <filesystem>

#include "base/Errors.h"
#include "base/Log.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongChanges.h"
#include "core/SongModel.h"
#include "core/SongSizes.h"
#include "sound/TuneRender.h"
#include "tunes/TunOpnSavClass.h"
#include "tunes/TuneTable.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

void MakeStepsOff(Tune& tune)
{
    AssignSteps(tune, kBlankTuneSteps, TuneStep());
}

/// A step whose beat was not found has lost its name, which is still in the file.
bool LacksABeat(const Tune& tune)
{
    return std::any_of(tune.Steps.begin(), tune.Steps.end(),
                       [](const TuneStep& step) { return step.IsOn() && step.StepBeat.Name.empty(); });
}

bool CacheIsMissing(const fs::path& path)
{
    return !FileExists(path.native() + "Cache");
}

} // namespace

bool CompleteTune(Tune& tune)
{
    const bool needsPicture = tune.Picture.IsNothing() || SamePicture(tune.Picture, Shared().DefaultTunePicture);
    if (needsPicture)
        tune.Picture = Shared().NewTunePicture;
    if (tune.CreatedBy.empty())
        tune.CreatedBy = "Me";
    if (tune.Name.empty())
        tune.Name = "New";
    if (tune.StepCount == 0)
        MakeStepsOff(tune);
    return needsPicture;
}

void MakeNewTune(Tune& tune)
{
    tune.Picture = Shared().NewTunePicture;
    tune.CreatedBy = "Me";
    tune.Name = "New";
    MakeStepsOff(tune);
    SongChanges::TuneEmptied(tune);
}

bool LoadChosenTune(Tune& chosenTune)
{
    const fs::path path = TuneFileToRead(chosenTune.Name);
    bool mayKeep = !IsOfClass(path);
    if (!chosenTune.TuneWaveValid) {
        mayKeep = TunOpnSavClass().Load_Tune(path) && mayKeep;
        chosenTune = Shared().TuneClipboard;
        Shared().CurrentTune = chosenTune;
    }
    mayKeep = mayKeep && !LacksABeat(chosenTune);
    if (chosenTune.TuneWaveValid)
        return mayKeep && !Shared().SongBeatsInside && CacheIsMissing(path);
    RenderTuneCycle(chosenTune);
    // A failed render has no length; storing it would silence the tune for ever.
    if (chosenTune.TuneWave.Length == 0)
        return false;
    Shared().CurrentTune = chosenTune; // a copy saved from the editor has the sound too
    return mayKeep;
}

void KeepChosenTune(const Tune& chosenTune)
{
    Shared().TuneClipboard = chosenTune;
    try {
        TunOpnSavClass().Save_Tune(TuneFile(chosenTune.Name));
    } catch (const RunTimeError& error) {
        LogFailure("Keeping the sound of a tune", error);
    }
}

} // namespace sprout
