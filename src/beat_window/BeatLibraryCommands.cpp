// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons of the beat window that change the folder of beats.
#include <filesystem>
#include <optional>

#include "beat_window/BeatWindow.h"
#include "beat_window/rules/BeatCommands.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "sound/WavOperations.h"
#include "ui/Dialogs.h"
#include "ui/FileDialogs.h"
#include "ui/QtText.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kNoBeatHint = "Click on a picture to select a beat";
constexpr std::string_view kWavFileSelPath = "WavFileSelPath";
constexpr std::string_view kPictureSelectPath = "PictureSelectPath";

void HintCommand(std::string_view text)
{
    ShowHint(QtText(text));
}

/// A hint that stays as long as the message can be read.
void TellWithHint(std::string_view hint, std::string_view line1, std::string_view line2 = {})
{
    HintCommand(hint);
    ShowMessage(line1, line2);
    HintCommand("");
}

std::string Quoted(std::string_view name)
{
    return '"' + std::string(name) + '"';
}

void KeepFolder(std::string_view setting, const fs::path& file)
{
    const std::string folder = ChosenFolder(file);
    if (!folder.empty())
        PutSetting("General", setting, folder);
}

std::optional<fs::path> AskForWave()
{
    return ChooseFileToOpen({"Please select a .wav file to use", GetSetting("General", kWavFileSelPath, ""), "", "wav",
                             "Wave files(*.wav)|*.wav|All files|*.*"});
}

std::optional<fs::path> AskForPicture()
{
    const std::string folder = GetSetting("General", kPictureSelectPath, PathText(Shared().InstallStars));
    return ChooseFileToOpen({"Please select a picture file (32x32) to use", folder, "", "bmp",
                             "Picture files(*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif|All files|*.*"});
}

void TellTooLong(const WaveData& wave)
{
    const double seconds = Seconds(wave);
    if (seconds > kLongestShownSeconds)
        ShowMessage("The duration of this file is " + NumberText(seconds) + " seconds,",
                    "This will be trimmed to 3 seconds.");
}

/// The wave file for a new beat, of which the user was told what there is to tell; nothing where there is none.
std::optional<fs::path> ChooseWave()
{
    const std::optional<fs::path> file = AskForWave();
    if (!file)
        return std::nullopt;
    const WaveData wave = LoadWaveFile(*file);
    if (wave.Length < 1) {
        HintCommand("");
        ShowMessage("Failed to load wav file.");
        return std::nullopt;
    }
    KeepFolder(kWavFileSelPath, *file);
    TellTooLong(wave);
    return file;
}

std::optional<Picture> ChoosePicture()
{
    const std::optional<fs::path> file = AskForPicture();
    if (!file)
        return std::nullopt;
    Picture picture = ReadChosenPicture(*file);
    KeepFolder(kPictureSelectPath, *file);
    return picture;
}

} // namespace

void BeatWindow::AddBeat()
{
    HintCommand("Choose a wav file and small (32x32) bmp picture file");
    if (!AddHelpShown)
        ShowMessage("Select a .wav file to add as a new beat.");
    const std::optional<fs::path> wave = ChooseWave();
    if (!wave)
        return;
    if (!AddHelpShown)
        ShowMessage("Now select a picture (32x32) file to use for this new beat.");
    const std::optional<Picture> picture = ChoosePicture();
    if (!picture)
        return;
    const NewBeatName name = NameNewBeat(*wave);
    AddBeatFiles(*wave, *picture, name.File);
    AddHelpShown = true;
    table.SelectedBeat = kRefindBeat;
    table.RefindBeatName = name.Name;
    if (name.FirstName != name.Name) {
        HintCommand("");
        ShowMessage(Quoted(name.FirstName) + " already exists", "New beat is added as " + name.Name);
    }
    SaveBeatOrder(table);
    LoadBeatFiles();
}

void BeatWindow::RenameBeat()
{
    if (!HasSelection(table))
        return TellWithHint(kNoBeatHint, "Select a beat to rename.");
    const std::string oldName = SelectedEntry(table).Name;
    if (IsSelectedProtected(table))
        return TellWithHint("Can not rename",
                            Quoted(oldName) + " is an original Beat from " + std::string(kProductFamily),
                            "Renaming is not possible.");
    HintCommand("Enter a new name for this beat");
    const std::string newName = SafeFileName(AskText("", "Enter the new name"));
    if (newName.empty() || newName == oldName)
        return;
    RenameBeatFiles(oldName, newName);
    At(table.BeatList, table.SelectedBeat).Name = newName;
    SaveBeatOrder(table);
    table.SelectedBeat = kRefindBeat;
    table.RefindBeatName = newName;
    LoadBeatFiles();
}

void BeatWindow::DeleteBeat()
{
    if (!HasSelection(table))
        return TellWithHint(kNoBeatHint, "Select a beat to delete.");
    HintCommand("This will delete the selected beat");
    if (IsSelectedProtected(table))
        return TellWithHint("Blue bordered are originals, red bordered are your new beats",
                            "This an original Beat from " + std::string(kProductFamily), "It can not be deleted.");
    const std::string name = SelectedEntry(table).Name;
    HintCommand("Click Yes to delete, No to keep");
    if (AskYesNo("Are you sure to delete this Beat?", "Beat name: " + name, " Confirm Delete Beat") != 1)
        return;
    HintCommand("");
    if (table.SelectedBeat == table.BeatListCount)
        --table.SelectedBeat;
    DeleteBeatFiles(name);
    SaveBeatOrder(table);
    LoadBeatFiles();
}

} // namespace sprout
