// SPDX-License-Identifier: GPL-3.0-or-later
#include "tunes/ChosenTune.h"

#include <filesystem>
#include <string>

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

void KeepSound(const Tune& tune, const fs::path& path)
{
    Shared().TuneClipboard = tune;
    try {
        TunOpnSavClass().Save_Tune(path);
    } catch (const RunTimeError& error) {
        LogFailure("Keeping the sound of a tune", error);
        return; // it is rendered again the next time it is chosen
    }
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

void LoadChosenTune(Tune& chosenTune)
{
    const fs::path path = TuneFile(chosenTune.Name);
    bool wasReadWhole = true;
    if (!chosenTune.TuneWaveValid) {
        wasReadWhole = TunOpnSavClass().Load_Tune(path);
        chosenTune = Shared().TuneClipboard;
        Shared().CurrentTune = chosenTune;
    }
    bool keep = wasReadWhole && !Shared().SongBeatsInside && CacheIsMissing(path);
    if (!chosenTune.TuneWaveValid) {
        RenderTuneCycle(chosenTune);
        // A failed render has no length; storing it would silence the file for ever.
        keep = wasReadWhole && chosenTune.TuneWave.Length > 0;
    }
    if (keep)
        KeepSound(chosenTune, path);
}

} // namespace sprout
