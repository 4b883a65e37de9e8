// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/OpenMainWindow.h"

#include <QCoreApplication>

#include <exception>

#include "app/start/SampleSong.h"
#include "app/start/StartUp.h"
#include "main_window/MainFrm.h"
#include "service/Services.h"
#include "service/SoundOutput.h"
#include "sound/PlayMod.h"
#include "tune_window/OpenTuneWindow.h"
#include "ui/Hints.h"

namespace sprout {

namespace {

void ShowSong(MainFrm& window)
{
    window.DrawTracksAll();
    window.UpdateTempoSliderValue();
    window.UpdateSongTitle();
}

/// Without the table of tunes the program is of use; it is read again when the tune window opens.
void FillTuneTable()
{
    try {
        LoadTuneFiles();
    } catch (const std::exception&) {
        return;
    }
}

void StartSound(MainFrm& window)
{
    SetSoundDriver(true);
    window.ShowSoundDevices(TheServices().sound->SoundDeviceCount());
}

} // namespace

// The desktop takes about as long to put the window on the screen as all that follows here: nothing waits for it, and
// the window is drawn once, with everything in it.
void OpenMainWindow(MainFrm& window)
{
    window.show();
    ShowSong(window);
    FillTuneTable();
    ShowHint(QCoreApplication::translate("OpenMainWindow", "Ready"));
    StartSound(window);
    ReadOptionFlags();
    if (OpenSampleSong())
        ShowSong(window);
}

} // namespace sprout
