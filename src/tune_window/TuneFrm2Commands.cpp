// SPDX-License-Identifier: GPL-3.0-or-later
// What the buttons and the menu of the tune window do.
#include <exception>
#include <filesystem>
#include <utility>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Product.h"
#include "base/ScaledPicture.h"
#include "beats/BeatFiles.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Messages.h"
#include "service/PictureFiles.h"
#include "service/Services.h"
#include "sound/PlayMod.h"
#include "tune_window/OpenTuneWindow.h"
#include "tune_window/StepEditor.h"
#include "tune_window/TuneFrm2.h"
#include "tune_window/TuneNameFrm.h"
#include "tune_window/TunePicture.h"
#include "tune_window/rules/TuneWindowPlan.h"
#include "tunes/ChosenTune.h"
#include "tunes/RandomTune.h"
#include "tunes/TunOpnSavClass.h"
#include "ui/Dialogs.h"
#include "ui/FileDialogs.h"
#include "ui/HelpFrm.h"
#include "ui/PictureGridPic.h"
#include "ui/QtText.h"

namespace sprout {

namespace fs = std::filesystem;

void TuneFrm2::OpenMoveMnu(QPoint at)
{
    for (int i = 0; i < kDeleteItem; ++i)
        MoveMnu[static_cast<std::size_t>(i)]->setEnabled(
            GridMoveTarget(static_cast<GridMove>(i), SelectedTune, Shared().TuneTableCount, kTuneColumns) > 0);
    PopPosiMnu->popup(at);
}

void TuneFrm2::MoveTune(GridMove move)
{
    const std::int32_t target = GridMoveTarget(move, SelectedTune, Shared().TuneTableCount, kTuneColumns);
    if (target == 0)
        return;
    std::swap(At(Shared().TuneTable, SelectedTune), At(Shared().TuneTable, target));
    SelectedTune = target;
    TakeTuneTable();
    RefreshShowAllPic();
}

void TuneFrm2::DeleteTune()
{
    if (!HasSelectedTune()) {
        ShowHint(QStringLiteral("Click on a picture to select a Tune"));
        ShowMessage("Select a Tune and try this.");
        return ShowHint({});
    }
    const Tune tune = At(Shared().TuneTable, SelectedTune);
    if (IsOriginalTune(tune) && !Shared().AllowEditOriginal) {
        ShowHint(QStringLiteral("Blue bordered are originals, red bordered are your new tunes"));
        ShowMessage("This is an original Tune from " + std::string(kProductFamily) + ".",
                    "This tune can not be deleted.");
        return ShowHint({});
    }
    ShowHint(QStringLiteral("Click Yes to delete, No to keep"));
    if (AskYesNo("Are you sure to delete this Tune?", "Tune name: " + tune.Name, " Confirm Delete Tune") == 1) {
        DeleteTuneFiles(tune.Name);
        SaveTuneOrder();
        ReadTunesAgain();
        SelectedTune = kNothingChosen; // the editor keeps its tune
        RefreshShowAllPic();
    }
    ShowHint({});
}

void TuneFrm2::ReadTunesAgain()
{
    Shared().TuneTableCount = 0;
    LoadTuneFiles();
    TakeTuneTable();
}

void TuneFrm2::TunePicClick()
{
    if (showsEditorsTune)
        return TestPlayBtn();
    if (HasSelectedTune())
        return PlaySelectedTune();
    ShowHint(QStringLiteral("Click on a picture to select a tune"));
    ShowMessage("Select a Tune first.");
    ShowHint({});
}

void TuneFrm2::TestPlayBtn()
{
    editor->PlayCurrentTune(0);
}

void TuneFrm2::NewTuneBtn()
{
    Player().StopPlay();
    Tune& tune = Shared().CurrentTune;
    MakeNewTune(tune);
    ChosenTune = tune;
    NewTuneMode = true;
    UpdateThisTune();
    RefreshShowAllPic();
    if (OkPressed && TuneChanged)
        MergeTuneBeats(Shared().Song, tune);
    ShowHint(QStringLiteral("Click a lamp to switch a step on"));
}

void TuneFrm2::RndTuneBtn()
{
    Player().StopPlay();
    editor->HidePlayMarks();
    const RandomSequence next = RandomSequence::FromClock();
    SelectedTune = kNothingChosen;
    RefreshShowAllPic();
    MakeRandomTune(Shared().CurrentTune, next);
    TuneChanged = true;
    UpdateThisTune();
    editor->PlayCurrentTune(0);
}

void TuneFrm2::SaveTuneBtn()
{
    ShowHint({});
    if (const std::optional<TuneNames> names = AskNames())
        SaveUnder(*names);
}

std::optional<TuneNames> TuneFrm2::AskNames()
{
    TuneNames names = NamesToOffer(Shared().CurrentTune, Shared().AllowEditOriginal);
    do {
        TuneNameFrm form(this, names);
        form.ShowModal();
        if (!form.NameOk)
            return {};
        names = Trimmed(form.Names());
    } while (!MaySaveUnder(names));
    return names;
}

bool TuneFrm2::MaySaveUnder(const TuneNames& names) const
{
    if (const std::string_view missing = WhatIsMissing(names); !missing.empty()) {
        ShowMessage(missing);
        return false;
    }
    if (!FileExists(TuneFile(names.Name)))
        return true;
    if (!Shared().AllowEditOriginal && IsNameOfOriginal(names.Name)) {
        ShowMessage("An Original " + std::string(kProductFamily) + " Tune is there with this name \"" + names.Name +
                        "\"\r\n",
                    "Please enter another name for this Tune and save.");
        return false;
    }
    return AskYesNo("Another Tune is there with this name: " + names.Name, "Would you like to overwrite that?") == 1;
}

void TuneFrm2::SaveUnder(const TuneNames& names)
{
    Tune tune = Shared().CurrentTune;
    tune.Name = names.Name;
    tune.CreatedBy = names.CreatedBy;
    SaveTuneFile(tune);
    Shared().CurrentTune.Name = names.Name;
    Shared().CurrentTune.CreatedBy = names.CreatedBy;
    ShowNames(names.Name, names.CreatedBy);
    ReadTunesAgain();
    // The last one, wherever the saved tune is.
    SelectedTune = Shared().TuneTableCount;
    ChosenTune = Shared().CurrentTune;
    RefreshShowAllPic();
    SaveTuneOrder();
}

void TuneFrm2::ChangePicBtn()
{
    ShowHint(QStringLiteral("Choose a small (32x32) bmp picture file"));
    FileQuestion question;
    question.Title = "Please select a picture file (32x32) to use";
    question.Folder = GetSetting(kGeneralSection, kPictureFolderSetting, PathText(Shared().InstallStars));
    question.DefaultExtension = "bmp";
    question.Filter = "Picture files|*.bmp;*.jpg;*.gif;*.png|All files|*.*";
    try {
        if (const std::optional<fs::path> file = ChooseFileToOpen(question))
            TakePicture(*file);
    } catch (const std::exception& error) {
        TheServices().messages->MessageBox("", "Error selecting picture file\r\n" + ErrorText(error));
    }
}

void TuneFrm2::TakePicture(const fs::path& file)
{
    const Picture picture = FittedPicture(TheServices().pictures->LoadPicture(file));
    Shared().CurrentTune.Picture = picture;
    TunePic->SetPicture(picture);
    TuneChanged = true;
    if (file.has_parent_path() && file.parent_path() != file.root_path())
        PutSetting(kGeneralSection, kPictureFolderSetting, PathText(AsFolder(file.parent_path())));
}

void TuneFrm2::HelpBtn()
{
    ShowHelp();
}

void TuneFrm2::OkBtn()
{
    ShowHint({});
    OkPressed = true;
    TuneChanged = true;
    ShowAllPic->BlinkSelectedTimer().stop();
    Answer(1);
}

void TuneFrm2::CancelBtn()
{
    ChosenTuneName = OriginalTuneName;
    Player().StopPlay();
    ShowHint({});
    SelectedTune = 0;
    OkPressed = false;
    ShowAllPic->BlinkSelectedTimer().stop();
    BandedForm::reject();
}

} // namespace sprout
