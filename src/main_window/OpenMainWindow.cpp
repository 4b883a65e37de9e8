// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/OpenMainWindow.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QWindow>

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

constexpr int kShownAtLatestMs = 1000;

void ShowSong(MainFrm& window)
{
    window.DrawTracksAll();
    window.UpdateTempoSliderValue();
    window.UpdateSongTitle();
}

/// Waits until the desktop has put the window on the screen, and draws it. A desktop that shows it later does not hold
/// up the start.
void Refresh(MainFrm& window)
{
    const QDeadlineTimer latest(kShownAtLatestMs);
    while (!window.windowHandle()->isExposed() && !latest.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents, 20);
    window.repaint();
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

void OpenMainWindow(MainFrm& window)
{
    window.show();
    ShowSong(window);
    Refresh(window);
    FillTuneTable();
    ShowHint(QCoreApplication::translate("OpenMainWindow", "Ready"));
    StartSound(window);
    ReadOptionFlags();
    if (OpenSampleSong())
        ShowSong(window);
}

} // namespace sprout
