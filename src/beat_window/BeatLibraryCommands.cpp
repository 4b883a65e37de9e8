// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/BeatLibraryCommands.h"

#include <exception>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "base/Errors.h"
#include "base/Extensions.h"
#include "base/FilePaths.h"
#include "base/Guarded.h"
#include "base/Product.h"
#include "base/ScaledPicture.h"
#include "beats/BeatCommands.h"
#include "beats/BeatFiles.h"
#include "core/ClassFolder.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Messages.h"
#include "service/Services.h"
#include "sound/ChosenSound.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/FileDialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/Hints.h"
#include "waves/WavOperations.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr LaterWords kClassBeat = Words::Later("This Beat is for the whole class.");
constexpr LaterWords kNoBeatHint = Words::Later("Click on a picture to select a beat");

bool IsClassBeat(const std::string& name)
{
    return IsOfClass(FindNamedFile(BeatFolders(), name, kWaveExtension));
}

/// Shows a message, and a hint for as long as it is open.
void TellOfBeat(const Words& hint, const Words& line1, const Words& line2 = {})
{
    ShowHint(hint);
    ShowMessage(line1, line2);
    ShowHint({});
}

void KeepBeatFolder(std::string_view setting, const fs::path& file)
{
    const std::string folder = ChosenFolder(file);
    if (!folder.empty())
        PutSetting(kGeneralSection, setting, folder);
}

std::optional<fs::path> AskForBeatWave()
{
    return ChooseFileToOpen({Words::Text("Please select a .wav file to use"),
                             GetSetting(kGeneralSection, kSoundFolderSetting, ""), "", "wav",
                             Words::Text("Wave files(*.wav)|*.wav|All files|*.*|%1", Words(kOtherSoundsFilter)), 3});
}

std::optional<fs::path> AskForBeatPicture()
{
    const std::string folder = GetSetting(kGeneralSection, kPictureFolderSetting, PathText(Shared().InstallStars));
    return ChooseFileToOpen(
        {Words::Text("Please select a picture file (32x32) to use"), folder, "", "bmp",
         Words::Text("Picture files(*.bmp;*.jpg;*.gif;*.png)|*.bmp;*.jpg;*.gif;*.png|All files|*.*")});
}

void TellBeatTooLong(const WaveData& wave)
{
    const double seconds = BeatSeconds(wave);
    if (seconds > kLongestShownSeconds)
        ShowMessage(Words::Text("The duration of this file is %1 seconds,", SecondsText(seconds)),
                    Words::Text("This will be trimmed to 3 seconds."));
}

/// Converts only as much of a sound as a beat can use.
std::optional<ChosenSound> OpenBeatSound(const fs::path& file)
{
    try {
        return OpenChosenSound(file, kLongestBeatSeconds, TooLong::Cut);
    } catch (const WorkStopped&) {
        ShowHint({});
        return std::nullopt;
    }
}

/// The sound for a new beat, after all messages about it; nothing if there is none.
std::optional<ChosenSound> ChooseBeatSound()
{
    const std::optional<fs::path> file = AskForBeatWave();
    std::optional<ChosenSound> sound = file ? OpenBeatSound(*file) : std::nullopt;
    if (!sound)
        return std::nullopt;
    const WaveData wave = LoadWaveFile(sound->WaveFile);
    if (wave.Length < 1) {
        ShowHint({});
        ShowMessage(Words::Text("Failed to load wav file."));
        return std::nullopt;
    }
    KeepBeatFolder(kSoundFolderSetting, *file);
    TellBeatTooLong(wave);
    return sound;
}

std::optional<Picture> ChooseBeatPicture()
{
    const std::optional<fs::path> file = AskForBeatPicture();
    if (!file)
        return std::nullopt;
    Picture picture = FittedPicture(ReadChosenPicture(*file));
    KeepBeatFolder(kPictureFolderSetting, *file);
    return picture;
}

} // namespace

BeatLibraryCommands::BeatLibraryCommands(BeatTable& ofWindow, std::function<void()> onChange)
    : table(ofWindow), reload(std::move(onChange))
{
}

void BeatLibraryCommands::AddBeat()
{
    Try(Words::Later("Error adding beat\r\n%1"), &BeatLibraryCommands::TryToAdd);
}

void BeatLibraryCommands::RenameBeat()
{
    Try(Words::Later("Error renaming beat\r\n%1"), &BeatLibraryCommands::TryToRename);
}

void BeatLibraryCommands::DeleteBeat()
{
    Try(Words::Later("Error deleting beat\r\n%1"), &BeatLibraryCommands::TryToDelete);
}

void BeatLibraryCommands::TryToAdd()
{
    ShowHint(Words::Text("Choose a wav file and small (32x32) bmp picture file"));
    if (!AddHelpShown)
        ShowMessage(Words::Text("Select a .wav file to add as a new beat."));
    const std::optional<ChosenSound> sound = ChooseBeatSound();
    if (!sound)
        return;
    if (!AddHelpShown)
        ShowMessage(Words::Text("Now select a picture (32x32) file to use for this new beat."));
    const std::optional<Picture> picture = ChooseBeatPicture();
    if (!picture)
        return;
    const NewBeatName name = NameNewBeat(sound->File);
    AddBeatFiles(sound->WaveFile, *picture, name.File);
    AddHelpShown = true;
    table.SelectedBeat = kRefindBeat;
    table.RefindBeatName = name.Name;
    if (name.FirstName != name.Name) {
        ShowHint({});
        ShowMessage(Words::Text("\"%1\" already exists", BeatNameForPeople(name.FirstName)),
                    Words::Text("New beat is added as %1", BeatNameForPeople(name.Name)));
    }
    SaveBeatOrder(table);
    reload();
}

void BeatLibraryCommands::TryToRename()
{
    if (!HasSelection(table))
        return TellOfBeat(kNoBeatHint, Words::Text("Select a beat to rename."));
    const std::string oldName = SelectedEntry(table).Name;
    if (IsClassBeat(oldName))
        return TellOfBeat(Words::Text("Can not rename"), kClassBeat, Words::Text("Renaming is not possible."));
    if (IsSelectedProtected(table))
        return TellOfBeat(Words::Text("Can not rename"),
                          Words::Text("\"%1\" is an original Beat from %2", BeatNameForPeople(oldName), kProductFamily),
                          Words::Text("Renaming is not possible."));
    ShowHint(Words::Text("Enter a new name for this beat"));
    const std::string newName = SafeFileName(AskText("", Words::Text("Enter the new name")));
    if (newName.empty() || newName == oldName)
        return;
    RenameBeatFiles(oldName, newName);
    At(table.BeatList, table.SelectedBeat).Name = newName;
    SaveBeatOrder(table);
    table.SelectedBeat = kRefindBeat;
    table.RefindBeatName = newName;
    reload();
}

void BeatLibraryCommands::TryToDelete()
{
    if (!HasSelection(table))
        return TellOfBeat(kNoBeatHint, Words::Text("Select a beat to delete."));
    ShowHint(Words::Text("This will delete the selected beat"));
    const std::string name = SelectedEntry(table).Name;
    if (IsClassBeat(name))
        return TellOfBeat({}, kClassBeat, Words::Text("It can not be deleted."));
    if (IsSelectedProtected(table))
        return TellOfBeat(Words::Text("Blue bordered are originals, red bordered are your new beats"),
                          Words::Text("This an original Beat from %1", kProductFamily),
                          Words::Text("It can not be deleted."));
    ShowHint(Words::Text("Click Yes to delete, No to keep"));
    if (AskYesNo(Words::Text("Are you sure to delete this Beat?"),
                 Words::Text("Beat name: %1", BeatNameForPeople(name)), Words::Text(" Confirm Delete Beat")) != 1)
        return;
    ShowHint({});
    if (table.SelectedBeat == table.BeatListCount)
        --table.SelectedBeat;
    DeleteBeatFiles(name);
    SaveBeatOrder(table);
    reload();
}

void BeatLibraryCommands::Try(const LaterWords& failed, void (BeatLibraryCommands::*command)())
{
    const auto tell = [this, &failed](const std::exception& error) {
        TheServices().messages->MessageBox({}, failed.With(ErrorWords(error)));
        // Part of it may have been done: the list shows what the folder contains now.
        Guarded(reload);
    };
    GuardedBy(tell, [this, command] { (this->*command)(); });
}

} // namespace sprout
