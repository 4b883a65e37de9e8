// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneFrm2.h"

#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <exception>
#include <filesystem>

#include "core/Errors.h"
#include "core/Paths.h"
#include "core/Settings.h"
#include "core/Shared.h"
#include "service/Messages.h"
#include "service/PictureFiles.h"
#include "service/Services.h"
#include "sound/PlayMod.h"
#include "tune_window/OpenTuneWindow.h"
#include "tune_window/StepEditor.h"
#include "tune_window/TuneNameFrm.h"
#include "tune_window/TunePicture.h"
#include "tune_window/rules/ChosenTune.h"
#include "tune_window/rules/RandomTune.h"
#include "tune_window/rules/TuneWindowPlan.h"
#include "tunes/BeatFiles.h"
#include "tunes/TunOpnSavClass.h"
#include "ui/Dialogs.h"
#include "ui/FileDialogs.h"
#include "ui/Guarded.h"
#include "ui/HelpFrm.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/PictureGridPic.h"
#include "ui/QtText.h"

namespace sprout {

namespace fs = std::filesystem;

namespace {

constexpr float kLeadInSeconds = 0.75F;
constexpr std::string_view kGridHint = "Click on a picture to choose a tune";
constexpr std::string_view kFrameHint = "This is the chosen Tune. Click on it to play";
constexpr std::string_view kDeleteHint = "This button will delete the selected tune";
constexpr int kDeleteItem = 4;

void Place(QWidget& widget, const PlanBox& box)
{
    widget.setGeometry(box.x, box.y, box.width, box.height);
}

/// A label's text, its end left out where it has no room.
void SetFittingText(QLabel& label, const QString& text)
{
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideRight, label.width()));
    label.setToolTip(label.text() == text ? QString() : text);
}

} // namespace

/// A button and what its click does.
struct TuneFrm2::CommandRow {
    ButtonRow button;
    Command command;
};

TuneFrm2::TuneFrm2(QWidget* parent) : BandedForm(parent)
{
    setObjectName(QStringLiteral("TuneFrm2"));
    SetCaption(" Choose a Tune");
    MakeGrid();
    MakeChosenTune();
    MakeButtons();
    MakeEditor();
    MakeMoveMnu();
    SetTabOrders();
}

void TuneFrm2::MakeGrid()
{
    ShowAllPic = new PictureGridPic(kTuneColumns, this);
    ShowAllPic->setObjectName(QStringLiteral("ShowAllPic"));
    ShowAllPic->setAccessibleName(tr("Tunes"));
    ShowAllPic->installEventFilter(this);
    Watcher().Watch(*ShowAllPic, kGridHint);
    Watcher().Watch(ShowAllPic->BlinkSelectImg(), kFrameHint);
    connect(ShowAllPic, &PictureGridPic::Pressed, this, [this](int index, Qt::MouseButton button, QPoint at) {
        Guarded([=, this] { ChooseTune(index, button, at); });
    });
}

void TuneFrm2::MakeChosenTune()
{
    TunePic = new TunePicture(this);
    TunePic->setObjectName(QStringLiteral("TunePic"));
    Watcher().Watch(*TunePic, "That shows the selected tune");
    connect(TunePic, &QAbstractButton::clicked, this, [this] { Guarded([this] { TunePicClick(); }); });
    TuneNameLbl = &AddLabel("TuneNameLbl");
    TuneNameLbl->setFont(TitleFont());
    Watcher().Watch(*TuneNameLbl, "That shows the name of the selected tune");
    CreatedByLbl = &AddLabel("CreatedByLbl");
    Watcher().Watch(*CreatedByLbl, "That shows who created the selected tune");
}

void TuneFrm2::MakeButtons()
{
    // The first one is the one that Enter presses.
    const std::array rows{
        CommandRow{{"OkBtn", "OK", "Click Ok after choosing and/or editing a tune", Plate::Word, kDeepLeaf},
                   &TuneFrm2::OkBtn},
        CommandRow{{"TestPlayBtn", "Play", "Play button, use it to hear this tune"}, &TuneFrm2::TestPlayBtn},
        CommandRow{{"RndTuneBtn", "Random tune", "Random button, use it to make up a surprise tune"},
                   &TuneFrm2::RndTuneBtn},
        CommandRow{{"NewTuneBtn", "New tune", "New button, use it to start making your own new tune"},
                   &TuneFrm2::NewTuneBtn},
        CommandRow{{"ChangePicBtn", "Change picture", "Picture button, use it to choose a picture for this tune"},
                   &TuneFrm2::ChangePicBtn},
        CommandRow{{"SaveTuneBtn", "Save tune", "Save button, use it to keep this tune among your tunes"},
                   &TuneFrm2::SaveTuneBtn},
        CommandRow{{"HelpBtn", "Help", "Help button, use it to see help"}, &TuneFrm2::HelpBtn},
        CommandRow{
            {"CancelBtn", "Cancel", "Cancel button, use it to leave the track's tune as it was", Plate::Word, kStone},
            &TuneFrm2::CancelBtn},
    };
    for (const CommandRow& row : rows)
        AddWordButton(row.button, [this, command = row.command] { Guarded([this, command] { (this->*command)(); }); });
}

void TuneFrm2::MakeEditor()
{
    editor = new StepEditor(this);
    connect(editor, &StepEditor::TuneEdited, this, [this] { TuneChanged = true; });
}

void TuneFrm2::MakeMoveMnu()
{
    constexpr std::array captions{"Move Up", "Move Down", "Move Left", "Move Right", "Delete"};
    PopPosiMnu = new QMenu(this);
    PopPosiMnu->setObjectName(QStringLiteral("PopPosiMnu"));
    for (std::size_t i = 0; i < captions.size(); ++i) {
        MoveMnu[i] = PopPosiMnu->addAction(QString::fromLatin1(captions[i]));
        MoveMnu[i]->setObjectName(QStringLiteral("MoveMnu%1").arg(i));
        connect(MoveMnu[i], &QAction::triggered, this, [this, i] {
            Guarded([this, i] { i == kDeleteItem ? DeleteTune() : MoveTune(static_cast<TuneMove>(i)); });
        });
    }
    PopPosiMnu->insertSeparator(MoveMnu[kDeleteItem]);
    connect(PopPosiMnu, &QMenu::hovered, this,
            [this](const QAction* item) { ShowHint(item == MoveMnu[kDeleteItem] ? QtText(kDeleteHint) : QString()); });
}

void TuneFrm2::SetTabOrders()
{
    QWidget* before = ShowAllPic;
    for (const char* name : {"TunePic", "TestPlayBtn", "RndTuneBtn", "NewTuneBtn", "ChangePicBtn", "SaveTuneBtn",
                             "HelpBtn", "OkBtn", "CancelBtn"}) {
        auto* next = findChild<QWidget*>(QString::fromLatin1(name));
        setTabOrder(before, next);
        before = next;
    }
    setTabOrder(before, editor);
}

void TuneFrm2::FitTo(QSize room)
{
    const QSize gridFrame = PictureGridPic::FrameSize(kTuneColumns, 0);
    const TuneWindowPlan plan =
        PlanTuneWindow({room.width(), room.height(), kBandHeight, gridFrame.width(), gridFrame.height(),
                        editor->sizeHint().height(), Shared().TuneTableCount});
    resize(plan.width, plan.height);
    ShowAllPic->PlaceAt({plan.grid.x, plan.grid.y}, plan.gridRows);
    Place(*TunePic, plan.tunePic);
    Place(*TuneNameLbl, plan.tuneNameLbl);
    Place(*CreatedByLbl, plan.createdByLbl);
    std::size_t tool = 0;
    for (const char* name : {"TestPlayBtn", "RndTuneBtn", "NewTuneBtn", "ChangePicBtn", "SaveTuneBtn", "HelpBtn"})
        Place(*findChild<QWidget*>(QString::fromLatin1(name)), plan.tools[tool++]);
    Place(*findChild<QWidget*>(QStringLiteral("OkBtn")), plan.okBtn);
    Place(*findChild<QWidget*>(QStringLiteral("CancelBtn")), plan.cancelBtn);
    Place(*editor, plan.editor);
}

void TuneFrm2::Open()
{
    FitTo(screen()->availableGeometry().size());
    TakeTuneTable();
    ShowAllPic->SetTopRow(1);
    Guarded([this] { FindChosenTune(); });
    ShowAllPic->setFocus();
    ShowModal();
}

void TuneFrm2::TakeTuneTable()
{
    std::vector<GridEntry> entries;
    entries.reserve(static_cast<std::size_t>(Shared().TuneTableCount));
    for (std::int32_t i = 1; i <= Shared().TuneTableCount; ++i) {
        const Tune& tune = At(Shared().TuneTable, i);
        entries.push_back({tune.Picture, tune.Name, IsOriginalTune(tune)});
    }
    ShowAllPic->SetEntries(entries);
}

void TuneFrm2::FindChosenTune()
{
    SelectedTune = FindInTuneTable(ChosenTuneName);
    RefreshShowAllPic();
}

void TuneFrm2::RefreshShowAllPic()
{
    const bool isNewTune = NewTuneMode;
    NewTuneMode = false;
    if (isNewTune)
        SelectedTune = -1;
    if (Shared().TuneTableCount < 1)
        return ShowNoTunes();
    if (SelectedTune == 0)
        ChooseFirstTune();
    ShowAllPic->SetSelected(SelectedTune);
    ShowAllPic->RefreshShowAllPic();
    HasSelectedTune() ? ShowSelectedTune() : ShowNothingSelected();
}

void TuneFrm2::ChooseFirstTune()
{
    SelectedTune = 1;
    ChosenTune = At(Shared().TuneTable, SelectedTune);
    Shared().TuneInfoDefault.CreatedBy = ChosenTune.CreatedBy;
    Shared().TuneInfoDefault.Name = "Lumo";
    PlaySelectedTune();
}

void TuneFrm2::ShowNoTunes()
{
    ShowAllPic->SetLines({QStringLiteral(" No Tune file found to show here."), QStringLiteral(" Tunes folder: "),
                          QtText(PathText(Shared().UserTunes)),
                          QStringLiteral(" This needs tune '.TqTun' file & 32x32 picture '.bmp' file as pair."),
                          QStringLiteral(" Please reinstall the software.")});
    ShowAllPic->SetSelected(0);
    ShowAllPic->RefreshShowAllPic();
    ShowTune("[none]", "", {});
}

void TuneFrm2::ShowSelectedTune()
{
    const Tune& tune = At(Shared().TuneTable, SelectedTune);
    ShowTune(tune.Name, "By: " + tune.CreatedBy, tune.Picture);
}

void TuneFrm2::ShowNothingSelected()
{
    ShowTune("New", "Me", {});
}

void TuneFrm2::ShowTune(const std::string& name, const std::string& author, const Picture& picture)
{
    SetFittingText(*TuneNameLbl, QtText(name));
    SetFittingText(*CreatedByLbl, QtText(author));
    TunePic->SetPicture(picture);
    TunePic->setAccessibleName(QtText(name));
}

void TuneFrm2::UpdateThisTune()
{
    const Tune& tune = Shared().CurrentTune;
    ShowTune(tune.Name, tune.CreatedBy, tune.Picture);
    editor->UpdateThisTune();
}

void TuneFrm2::ChooseTune(std::int32_t index, Qt::MouseButton button, QPoint at)
{
    if (IsInTuneTable(index)) {
        SelectedTune = index;
        ChosenTune = At(Shared().TuneTable, index);
    }
    RefreshShowAllPic();
    if (!IsInTuneTable(index))
        return;
    if (button == Qt::LeftButton)
        PlaySelectedTune();
    else if (button == Qt::RightButton)
        OpenMoveMnu(at);
}

void TuneFrm2::PlaySelectedTune()
{
    if (!HasSelectedTune())
        return;
    LoadChosenTune(ChosenTune);
    if (ChosenTune.TuneWaveValid)
        PlayWaveDelayed(ChosenTune.TuneWave, kLeadInSeconds, "Playing Tune", Loop::No);
}

void TuneFrm2::OpenMoveMnu(QPoint at)
{
    for (int i = 0; i < kDeleteItem; ++i)
        MoveMnu[static_cast<std::size_t>(i)]->setEnabled(
            TuneMoveTarget(static_cast<TuneMove>(i), SelectedTune, Shared().TuneTableCount) > 0);
    PopPosiMnu->popup(at);
}

void TuneFrm2::MoveTune(TuneMove move)
{
    const std::int32_t target = TuneMoveTarget(move, SelectedTune, Shared().TuneTableCount);
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
        SelectedTune = 0;
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
}

void TuneFrm2::RndTuneBtn()
{
    Player().StopPlay();
    editor->HidePlayMarks();
    const RandomSequence next = RandomSequence::FromClock();
    SelectedTune = -1;
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
    SetFittingText(*TuneNameLbl, QtText(names.Name));
    SetFittingText(*CreatedByLbl, QtText(names.CreatedBy));
    ReadTunesAgain();
    // The last one, whatever place the saved tune has.
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
    question.Folder = GetSetting("General", "PictureSelectPath", PathText(Shared().InstallStars));
    question.DefaultExtension = "bmp";
    question.Filter = "Picture files|*.bmp;*.jpg;*.gif|All files|*.*";
    try {
        if (const std::optional<fs::path> file = ChooseFileToOpen(question))
            TakePicture(*file);
    } catch (const std::exception& error) {
        TheServices().messages->MessageBox("", "Error selecting picture file\r\n" + ErrorText(error));
    }
}

void TuneFrm2::TakePicture(const fs::path& file)
{
    const Picture picture = TheServices().pictures->LoadPicture(file);
    Shared().CurrentTune.Picture = picture;
    TunePic->SetPicture(picture);
    TuneChanged = true;
    if (file.has_parent_path() && file.parent_path() != file.root_path())
        PutSetting("General", "PictureSelectPath", PathText(AsFolder(file.parent_path())));
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

void TuneFrm2::reject()
{
    Guarded([this] { CancelBtn(); });
}

void TuneFrm2::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        Guarded([this] { TestPlayBtn(); });
    else
        BandedForm::keyPressEvent(event);
}

bool TuneFrm2::eventFilter(QObject* watched, QEvent* event)
{
    // In the grid the blank hears the tune as it stands now, edits and all.
    if (watched == ShowAllPic && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        Guarded([this] { TestPlayBtn(); });
        return true;
    }
    return BandedForm::eventFilter(watched, event);
}

} // namespace sprout
