// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/OpenTuneWindow.h"

#include <QPointer>

#include "beats/BeatFiles.h"
#include "core/Shared.h"
#include "tune_window/TuneFrm2.h"
#include "tunes/ChosenTune.h"
#include "tunes/TuneTable.h"
#include "ui/forms/Dialogs.h"

namespace sprout {

namespace {

/// The only tune window, once it was opened.
QPointer<TuneFrm2>& TheTuneFrm2()
{
    static QPointer<TuneFrm2> window;
    return window;
}

TuneFrm2& OpenedTuneFrm2()
{
    if (!TheTuneFrm2())
        TheTuneFrm2() = new TuneFrm2(WindowInFront());
    return *TheTuneFrm2();
}

} // namespace

bool OpenTuneWindow(Tune& tune, bool& newFlag)
{
    SharedState& shared = Shared();
    shared.CurrentTune = tune;
    ExpandTuneBeats(shared.Song, shared.CurrentTune);
    bool changed = CompleteTune(shared.CurrentTune);
    TuneFrm2& window = OpenedTuneFrm2();
    window.OriginalTuneName = tune.Name;
    window.ChosenTuneName = tune.Name;
    window.NewTuneMode = newFlag;
    if (shared.TuneTableCount < 1)
        LoadTuneFiles();
    window.Open();
    newFlag = window.OkPressed;
    if (window.OkPressed && window.TuneChanged) {
        tune = shared.CurrentTune;
        MergeTuneBeats(shared.Song, tune);
        changed = true;
    }
    return changed;
}

void LoadTuneFiles()
{
    if (Shared().TuneTableCount >= 1) {
        if (TheTuneFrm2())
            TheTuneFrm2()->FindChosenTune();
        return;
    }
    ReadTuneTable();
    ShowHint({});
}

void UpdateThisTune()
{
    if (TheTuneFrm2())
        TheTuneFrm2()->UpdateThisTune();
}

} // namespace sprout
