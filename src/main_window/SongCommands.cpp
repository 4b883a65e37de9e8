// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/SongCommands.h"

#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "base/Product.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "core/SongChanges.h"
#include "core/SongModel.h"
#include "songs/OpenSaveClass.h"
#include "songs/SongFiles.h"
#include "sound/PlayMod.h"
#include "ui/Windows.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/MessageForms.h"
#include "ui/widgets/Hints.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

enum class SaveAnswer { Cancel = 0, No = 1, Yes = 2 };

void ClearHint()
{
    ShowHint({});
}

/// Runs a command; its error is shown in place of the "%1" of `failed`.
template <typename Command>
void RunCommand(const LaterWords& failed, Command command)
{
    GuardedBy([&failed](const std::exception& error) { ShowMessage(failed.With(ErrorWords(error))); }, command);
}

/// Tells the window that a song is being chosen while this object lives.
class OpeningMark {
public:
    explicit OpeningMark(const std::function<void(bool)>& tellOpening) : tell(tellOpening) { tell(true); }
    OpeningMark(const OpeningMark&) = delete;
    OpeningMark& operator=(const OpeningMark&) = delete;
    ~OpeningMark() { tell(false); }

private:
    const std::function<void(bool)>& tell;
};

/// Restores the old title unless the song was saved under the new one.
class TitleUntilSaved {
public:
    explicit TitleUntilSaved(std::string newTitle) : oldTitle(Shared().Song.SongTitle)
    {
        Shared().Song.SongTitle = std::move(newTitle);
    }
    TitleUntilSaved(const TitleUntilSaved&) = delete;
    TitleUntilSaved& operator=(const TitleUntilSaved&) = delete;
    ~TitleUntilSaved()
    {
        if (!saved)
            Shared().Song.SongTitle.swap(oldTitle);
    }

    void Keep() { saved = true; }

private:
    std::string oldTitle;
    bool saved = false;
};

} // namespace

SongCommands::SongCommands(QWidget& owner, SongCommandCalls windowCalls) : window(owner), calls(std::move(windowCalls))
{
}

bool SongCommands::ConfirmSongSave(const LaterWords& failed)
{
    SongState& song = Shared().Song;
    if (!song.SongChanged) {
        ClearHint();
        return true;
    }
    ShowHint(Words::Text("This Song is changed, say \"Yes\" to save if you need it"));
    SaveConfirmFrm question(&window, song.SongTitle);
    question.SetCaption(CaptionOf({}));
    const auto answer = static_cast<SaveAnswer>(question.ShowModal());
    ClearHint();
    if (answer != SaveAnswer::Yes)
        return answer == SaveAnswer::No;
    bool saved = false;
    RunCommand(failed, [&] { saved = SaveUnderTitle(); });
    return saved;
}

bool SongCommands::SaveUnderTitle()
{
    SongState& song = Shared().Song;
    const fs::path place = PlaceOfSong(song.SongTitle);
    // If it is another song's file, or if no file can have that title, the user chooses.
    if (place.empty() || !MayReplaceUnasked(place))
        return SaveUnderChosenName();
    OpenSaveClass().Save_Song(place);
    SongChanges::SongSaved(song);
    return true;
}

void SongCommands::NewBtn()
{
    constexpr LaterWords failed = Words::Later("Error making new file\r\n%1");
    RunCommand(failed, [&] {
        if (!ConfirmSongSave(failed))
            return;
        ClearHint();
        Player().StopPlay();
        NewSong();
        calls.ShowNewSong();
        SongChanges::SongOpened(Shared().Song);
    });
}

void SongCommands::OpenBtn()
{
    Open([this] { OpenChosenSong(); });
}

void SongCommands::OpenSong(const fs::path& file)
{
    Open([this, &file] { OpenFile(file, BaseName(file)); });
}

void SongCommands::Open(const std::function<void()>& open)
{
    const OpeningMark mark(calls.Opening);
    constexpr LaterWords failed = Words::Later("Error Opening file\r\n%1");
    RunCommand(failed, [&] {
        if (!ConfirmSongSave(failed))
            return;
        ClearHint();
        Player().StopPlay();
        open();
    });
}

void SongCommands::OpenChosenSong()
{
    const std::optional<std::string> name = TheWindows().ChooseSongToOpen(window);
    if (name)
        OpenFile(SongFileToOpen(*name), *name);
}

void SongCommands::OpenFile(const fs::path& file, const std::string& name)
{
    if (!FileExists(file)) {
        ShowMessage(Words::Text("This song is not there any more."), Words::AsIs(name));
        return;
    }
    OpenSaveClass().Load_Song(file);
    Shared().Song.SongTitle = name;
    calls.ShowNewSong();
    SongChanges::SongOpened(Shared().Song);
}

void SongCommands::SaveBtn()
{
    ClearHint();
    RunCommand(kErrorSaving, [this] { static_cast<void>(SaveUnderChosenName()); });
}

bool SongCommands::SaveUnderChosenName()
{
    SongState& song = Shared().Song;
    RequireTracks(song);
    const std::optional<std::string> name = TheWindows().ChooseNameToSave(window, song.SongTitle);
    if (!name)
        return false;
    TitleUntilSaved title(*name);
    OpenSaveClass().Save_Song(PlaceOfSong(song.SongTitle));
    title.Keep();
    SongChanges::SongSaved(song);
    calls.UpdateSongTitle();
    ShowMessage(Words::Text("Your song \"%1\" is saved.", song.SongTitle), {}, Words::Text("Good!"));
    return true;
}

void SongCommands::SongTitleChgBtn()
{
    SongState& song = Shared().Song;
    ClearHint();
    SongTitleFrm form(&window, song.SongTitle, song.SongCreatedBy);
    form.SetCaption(Words::Text(" Change Song Title"));
    if (form.ShowModal() != 1)
        return;
    const bool changed = form.Name() != song.SongTitle || form.CreatedBy() != song.SongCreatedBy;
    if (!changed)
        return;
    song.SongTitle = form.Name();
    song.SongCreatedBy = form.CreatedBy();
    calls.UpdateSongTitle();
    SongChanges::TitleChanged(song);
}

} // namespace sprout
