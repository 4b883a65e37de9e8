// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneFileCommands.h"

#include <exception>
#include <filesystem>
#include <string>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "base/Product.h"
#include "base/ScaledPicture.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Messages.h"
#include "service/PictureFiles.h"
#include "service/Services.h"
#include "tune_window/TuneNameFrm.h"
#include "tunes/TunOpnSavClass.h"
#include "tunes/TuneTable.h"
#include "ui/Dialogs.h"
#include "ui/FileDialogs.h"
#include "ui/Hints.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

bool MaySaveUnder(const TuneNames& names)
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

void TakePictureFile(const fs::path& file, const std::function<void(const Picture&)>& take)
{
    take(FittedPicture(TheServices().pictures->LoadPicture(file)));
    if (file.has_parent_path() && file.parent_path() != file.root_path())
        PutSetting(kGeneralSection, kPictureFolderSetting, PathText(AsFolder(file.parent_path())));
}

} // namespace

std::optional<TuneNames> AskTuneNames(QWidget* parent)
{
    TuneNames names = NamesToOffer(Shared().CurrentTune, Shared().AllowEditOriginal);
    do {
        TuneNameFrm form(parent, names);
        form.ShowModal();
        if (!form.NameOk)
            return {};
        names = Trimmed(form.Names());
    } while (!MaySaveUnder(names));
    return names;
}

void SaveCurrentTune(const TuneNames& names)
{
    Tune tune = Shared().CurrentTune;
    tune.Name = names.Name;
    tune.CreatedBy = names.CreatedBy;
    SaveTuneFile(tune);
    Shared().CurrentTune.Name = names.Name;
    Shared().CurrentTune.CreatedBy = names.CreatedBy;
}

bool MayDeleteTune(const Tune* tune)
{
    if (!tune) {
        ShowHint(QStringLiteral("Click on a picture to select a Tune"));
        ShowMessage("Select a Tune and try this.");
        return false;
    }
    if (IsOriginalTune(*tune) && !Shared().AllowEditOriginal) {
        ShowHint(QStringLiteral("Blue bordered are originals, red bordered are your new tunes"));
        ShowMessage("This is an original Tune from " + std::string(kProductFamily) + ".",
                    "This tune can not be deleted.");
        return false;
    }
    ShowHint(QStringLiteral("Click Yes to delete, No to keep"));
    return AskYesNo("Are you sure to delete this Tune?", "Tune name: " + tune->Name, " Confirm Delete Tune") == 1;
}

void ChooseTunePicture(const std::function<void(const Picture&)>& take)
{
    ShowHint(QStringLiteral("Choose a small (32x32) bmp picture file"));
    FileQuestion question;
    question.Title = "Please select a picture file (32x32) to use";
    question.Folder = GetSetting(kGeneralSection, kPictureFolderSetting, PathText(Shared().InstallStars));
    question.DefaultExtension = "bmp";
    question.Filter = "Picture files|*.bmp;*.jpg;*.gif;*.png|All files|*.*";
    try {
        if (const std::optional<fs::path> file = ChooseFileToOpen(question))
            TakePictureFile(*file, take);
    } catch (const std::exception& error) {
        TheServices().messages->MessageBox("", "Error selecting picture file\r\n" + ErrorText(error));
    }
}

} // namespace sprout
