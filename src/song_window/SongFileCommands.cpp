// SPDX-License-Identifier: GPL-3.0-or-later
#include "song_window/SongFileCommands.h"

#include <algorithm>
#include <exception>
#include <string>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "song_window/SongList.h"
#include "song_window/rules/SongChoice.h"
#include "ui/Dialogs.h"
#include "ui/Hints.h"
#include "ui/QtText.h"

namespace sprout {

namespace {

constexpr std::string_view kSelectSongHint = "Click on the song name in the list to select one";

void HintSongFile(std::string_view text)
{
    ShowHint(QtText(text));
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
    if (!IsSongSelected(list, "Select a song to copy"))
        return;
    const SongFile song = *list.SelectedSong();
    const std::string newName = FreeCopyName(list.Songs(), song.Name);
    CopySong(song, newName);
    ReloadSongs(list);
    ShowMessage("The song \"" + song.Name + "\"", "is copied to \"" + newName + "\"");
}

void DeleteSongFile(SongList& list)
{
    if (!IsSongSelected(list, "Select a song to delete."))
        return;
    HintSongFile("Click Yes to delete, No to keep");
    const SongFile song = *list.SelectedSong();
    if (AskYesNo("Do you want to delete this song?", song.Name) == 1) {
        DeleteSong(song);
        ReloadSongs(list);
    }
    HintSongFile("");
}

void RenameSongFile(SongList& list)
{
    if (!IsSongSelected(list, "Select a song to rename."))
        return;
    const SongFile song = *list.SelectedSong();
    const std::string newName = SafeFileName(AskText(song.Name, "Enter the new name:"));
    if (newName.empty())
        return;
    if (FindSong(list.Songs(), newName)) {
        ShowMessage("A song with this name already exists", newName, "Rename Failed");
        return;
    }
    RenameSong(song, newName);
    list.LoadSongNames();
    const std::span<const SongFile> songs = list.Songs();
    const auto renamed =
        std::find_if(songs.begin(), songs.end(), [&](const SongFile& candidate) { return candidate.Name == newName; });
    list.SelectRow(renamed == songs.end() ? -1 : static_cast<int>(renamed - songs.begin()));
}

/// Runs a command; an error is shown after `text`.
void TrySongCommand(std::string_view text, void (*command)(SongList&), SongList& list)
{
    try {
        command(list);
    } catch (const std::exception& error) {
        HintSongFile("");
        TheServices().messages->MessageBox("", std::string(text) + "\r\n" + ErrorText(error));
        // Another program may have changed the folder: the list shows what is there now.
        ReloadSongs(list);
    }
}

} // namespace

bool IsSongSelected(const SongList& list, std::string_view message)
{
    if (list.SelectedSong())
        return true;
    HintSongFile(kSelectSongHint);
    ShowMessage(message);
    HintSongFile("");
    return false;
}

void CopySelectedSong(SongList& list)
{
    TrySongCommand("Error Copying file", CopySongFile, list);
}

void DeleteSelectedSong(SongList& list)
{
    TrySongCommand("Error Deleting file", DeleteSongFile, list);
}

void RenameSelectedSong(SongList& list)
{
    TrySongCommand("Error Renaming file", RenameSongFile, list);
}

} // namespace sprout
