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
#include "ui/forms/Dialogs.h"
#include "ui/forms/FileDialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/widgets/Hints.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

bool MaySaveUnder(const TuneNames& names)
{
    if (const LaterWords missing = WhatIsMissing(names); !missing.IsEmpty()) {
        ShowMessage(missing);
        return false;
    }
    if (!FileExists(TuneFile(names.Name)))
        return true;
    if (!Shared().AllowEditOriginal && IsNameOfOriginal(names.Name)) {
        ShowMessage(Words::Text("An Original %1 Tune is there with this name \"%2\"\r\n", kProductFamily, names.Name),
                    Words::Text("Please enter another name for this Tune and save."));
        return false;
    }
    return AskYesNo(Words::Text("Another Tune is there with this name: %1", names.Name),
                    Words::Text("Would you like to overwrite that?")) == 1;
}

bool IsClassTune(const Tune& tune)
{
    return IsOfClass(TuneFileToRead(tune.Name));
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

bool IsDeletionOffered(const Tune* tune)
{
    return !tune || (!IsClassTune(*tune) && (!IsOriginalTune(*tune) || !IsSetToOne("HideDeleteSupplied")));
}

bool MayDeleteTune(const Tune* tune)
{
    if (!tune) {
        ShowHint(Words::Text("Click on a picture to select a Tune"));
        ShowMessage(Words::Text("Select a Tune and try this."));
        return false;
    }
    if (IsOriginalTune(*tune) && (!Shared().AllowEditOriginal || !IsDeletionOffered(tune))) {
        ShowHint(Words::Text("Blue bordered are originals, red bordered are your new tunes"));
        ShowMessage(Words::Text("This is an original Tune from %1.", kProductFamily),
                    Words::Text("This tune can not be deleted."));
        return false;
    }
    if (IsClassTune(*tune)) {
        ShowMessage(Words::Text("This Tune is for the whole class."), Words::Text("This tune can not be deleted."));
        return false;
    }
    ShowHint(Words::Text("Click Yes to delete, No to keep"));
    return AskYesNo(Words::Text("Are you sure to delete this Tune?"), Words::Text("Tune name: %1", tune->Name),
                    Words::Text(" Confirm Delete Tune")) == 1;
}

void ChooseTunePicture(const std::function<void(const Picture&)>& take)
{
    ShowHint(Words::Text("Choose a small (32x32) bmp picture file"));
    FileQuestion question;
    question.Title = Words::Text("Please select a picture file (32x32) to use");
    question.Folder = GetSetting(kGeneralSection, kPictureFolderSetting, PathText(Shared().InstallStars));
    question.DefaultExtension = "bmp";
    question.Filter = Words::Text("Picture files|*.bmp;*.jpg;*.gif;*.png|All files|*.*");
    Guarded(Words::Later("Error selecting picture file\r\n%1"), [&] {
        if (const std::optional<fs::path> file = ChooseFileToOpen(question))
            TakePictureFile(*file, take);
    });
}

} // namespace sprout
