// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpenMainWindow.h"

#include <QCoreApplication>
#include <QTimer>

#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "app/start/FirstWelcome.h"
#include "app/start/LibraryNews.h"
#include "app/start/SampleSong.h"
#include "app/start/StartUp.h"
#include "app/start/UserFolders.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "core/Shared.h"
#include "main_window/MainFrm.h"
#include "service/Services.h"
#include "service/SoundOutput.h"
#include "songs/SongKeeper.h"
#include "sound/PlayMod.h"
#include "tune_window/OpenTuneWindow.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/Hints.h"

namespace sprout {

namespace {

void ShowSong(MainFrm& window)
{
    window.DrawTracksAll();
    window.UpdateTempoSliderValue();
    window.UpdateSongTitle();
}

/// The program is useful without the table of tunes, which is read again when the tune window opens.
void FillTuneTable()
{
    GuardedQuietly("Reading the table of tunes", LoadTuneFiles);
}

void StartSound(MainFrm& window)
{
    SetSoundDriver(true);
    window.ShowSoundDevices(TheServices().sound->SoundDeviceCount());
}

/// What a child makes is lost at the end, which it should know before it begins.
void TellNothingIsKept()
{
    Guarded([] {
        const Words folders = FoldersThatKeepNothing();
        if (!folders.IsBlank())
            ShowMessage(Words::Text("What you make now cannot be kept here:"), folders);
    });
}

/// Tells the user which songs the last run could only keep, and where.
void TellKeptSongs()
{
    Guarded([] {
        std::vector<Words> names;
        for (const std::string& name : TakeKeptSongs())
            names.push_back(Words::Text("\"%1\"", name));
        const Words list = Words::Joined(std::move(names), ", ");
        if (!list.IsBlank())
            ShowMessage(Words::Text("What was not saved last time is kept as the song %1", list),
                        Words::Text("in the folder %1", PathText(Shared().UserSongs)));
    });
}

/// Offers what came with a new version of the program.
void OfferLibraryNews(MainFrm& window)
{
    const LibraryNews news = LibraryNews::Find();
    if (news.IsEmpty())
        return;
    if (AskYesNo(Words::Text("There is something new for you. Do you want it?"), news.Names(),
                 Words::Text("Something new")) == 1) {
        news.Add();
        Shared().TuneTableCount = 0; // to be read again
        FillTuneTable();
        return;
    }
    // If the program is being ended, nobody has said no: then this is not reached.
    QTimer::singleShot(0, &window, [news] { Guarded([&news] { news.Decline(); }); });
}

} // namespace

// The desktop takes about as long to show the window as everything below takes: nothing waits for it, and the window is
// drawn once, with all its content.
void OpenMainWindow(MainFrm& window, const std::filesystem::path& song)
{
    window.show();
    ShowSong(window);
    FillTuneTable();
    ShowHint(Words::Text("Ready"));
    StartSound(window);
    ReadOptionFlags();
    const bool isWelcome = TakeFirstWelcome();
    if (OpenSampleSong())
        ShowSong(window);
    if (isWelcome)
        window.ShowWelcome();
    // A message waits for its answer, so the start must be over.
    QTimer::singleShot(0, &window, [&window, song] {
        if (!song.empty())
            window.OpenSong(song);
        TellNothingIsKept();
        TellKeptSongs();
        Guarded([&window] { OfferLibraryNews(window); });
    });
}

} // namespace sprout
