// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongFileCommands.h"

#include <algorithm>
#include <exception>
#include <string>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "core/Paths.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "song_window/SongList.h"
#include "song_window/rules/SongChoice.h"
#include "ui/forms/Dialogs.h"
#include "ui/widgets/Hints.h"

namespace sprout {

namespace {

constexpr LaterWords kSelectSongHint = Words::Later("Click on the song name in the list to select one");

void HintSongFile(const Words& text)
{
    ShowHint(text);
}

/// Lists the folder anew and selects the line where the selected one was.
void ReloadSongs(SongList& list)
{
    const int row = list.SelectedRow();
    list.LoadSongNames();
    list.SelectRow(RowAfterChange(row, static_cast<int>(list.Songs().size())));
}

void CopySongFile(SongList& list)
{
    if (!IsSongSelected(list, Words::Text("Select a song to copy")))
        return;
    const SongFile song = *list.SelectedSong();
    const std::string newName = FreeCopyName(list.Songs(), song.Name);
    CopySong(song, newName);
    ReloadSongs(list);
    ShowMessage(Words::Text("The song \"%1\"", song.Name), Words::Text("is copied to \"%1\"", newName));
}

void DeleteSongFile(SongList& list)
{
    if (!IsSongSelected(list, Words::Text("Select a song to delete.")))
        return;
    HintSongFile(Words::Text("Click Yes to delete, No to keep"));
    const SongFile song = *list.SelectedSong();
    if (AskYesNo(Words::Text("Do you want to delete this song?"), Words::AsIs(song.Name)) == 1) {
        DeleteSong(song);
        ReloadSongs(list);
    }
    HintSongFile({});
}

void RenameSongFile(SongList& list)
{
    if (!IsSongSelected(list, Words::Text("Select a song to rename.")))
        return;
    const SongFile song = *list.SelectedSong();
    if (IsOfClass(song.Path))
        return ShowMessage(Words::Text("This song is for the whole class."),
                           Words::Text("It can be copied, but not renamed."));
    const std::string newName = SafeFileName(AskText(song.Name, Words::Text("Enter the new name:")));
    if (newName.empty())
        return;
    if (FindSong(list.Songs(), newName)) {
        ShowMessage(Words::Text("A song with this name already exists"), Words::AsIs(newName),
                    Words::Text("Rename Failed"));
        return;
    }
    RenameSong(song, newName);
    list.LoadSongNames();
    const std::span<const SongFile> songs = list.Songs();
    const auto renamed =
        std::find_if(songs.begin(), songs.end(), [&](const SongFile& candidate) { return candidate.Name == newName; });
    list.SelectRow(renamed == songs.end() ? -1 : static_cast<int>(renamed - songs.begin()));
}

/// Runs a command; its error is shown in place of the "%1" of `failed`.
void TrySongCommand(const LaterWords& failed, void (*command)(SongList&), SongList& list)
{
    const auto tell = [&](const std::exception& error) {
        HintSongFile({});
        TheServices().messages->MessageBox({}, failed.With(ErrorWords(error)));
        // Another program may have changed the folder: the list shows what is there now.
        ReloadSongs(list);
    };
    GuardedBy(tell, [&] { command(list); });
}

} // namespace

bool IsSongSelected(const SongList& list, const Words& message)
{
    if (list.SelectedSong())
        return true;
    HintSongFile(kSelectSongHint);
    ShowMessage(message);
    HintSongFile({});
    return false;
}

void CopySelectedSong(SongList& list)
{
    TrySongCommand(Words::Later("Error Copying file\r\n%1"), CopySongFile, list);
}

void DeleteSelectedSong(SongList& list)
{
    TrySongCommand(Words::Later("Error Deleting file\r\n%1"), DeleteSongFile, list);
}

void RenameSelectedSong(SongList& list)
{
    TrySongCommand(Words::Later("Error Renaming file\r\n%1"), RenameSongFile, list);
}

} // namespace sprout
