// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneFrm2.h"

#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

#include "base/FilePaths.h"
#include "core/Shared.h"
#include "sound/PlayMod.h"
#include "tune_window/StepEditor.h"
#include "tune_window/TunePicture.h"
#include "tune_window/rules/TuneWindowPlan.h"
#include "tunes/ChosenTune.h"
#include "tunes/TunOpnSavClass.h"
#include "ui/Guarded.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/PictureGridPic.h"
#include "ui/QtText.h"
#include "ui/QtTip.h"

namespace sprout {

namespace {

constexpr float kLeadInSeconds = 0.75F;
constexpr std::string_view kGridHint = "Click on a picture to choose a tune";
constexpr std::string_view kFrameHint = "This is the chosen Tune. Click on it to play";
constexpr const char* kDeleteHint = "This button will delete the selected tune";

void PutAt(QWidget& widget, const PlanBox& box)
{
    widget.setGeometry(box.x, box.y, box.width, box.height);
}

/// Shows a text; its end is cut off if it does not fit.
void SetFittingText(QLabel& label, const QString& text)
{
    label.setText(label.fontMetrics().elidedText(text, Qt::ElideRight, label.width()));
    label.setToolTip(label.text() == text ? QString() : QtTip(text.toStdString()));
    label.setAccessibleName(text);
}

} // namespace

/// A button and its click handler.
struct TuneFrm2::CommandRow {
    ButtonRow button;
    Command command = nullptr;
};

TuneFrm2::TuneFrm2(QWidget* parent) : BandedForm(parent)
{
    setObjectName(QStringLiteral("TuneFrm2"));
    SetCaption(" Choose a Tune");
    ShowHintsInBand();
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
    connect(ShowAllPic, &PictureGridPic::DoubleClicked, this, [this] { Guarded([this] { OkBtn(); }); });
    connect(ShowAllPic, &PictureGridPic::DeleteWanted, this, [this] { Guarded([this] { DeleteTune(); }); });
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
    // Enter presses the first one.
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
        CommandRow{{"DeleteTuneBtn", "Delete tune", kDeleteHint, Plate::Tool, {}, "TrackDeleteBtn"},
                   &TuneFrm2::DeleteTune},
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
    std::array<std::string_view, kDeleteItem + 1> captions{};
    *std::copy(kGridMoveCaptions.begin(), kGridMoveCaptions.end(), captions.begin()) = "Delete";
    PopPosiMnu = new QMenu(this);
    PopPosiMnu->setObjectName(QStringLiteral("PopPosiMnu"));
    for (std::size_t i = 0; i < captions.size(); ++i) {
        MoveMnu[i] = PopPosiMnu->addAction(QtText(captions[i]));
        MoveMnu[i]->setObjectName(QStringLiteral("MoveMnu%1").arg(i));
        connect(MoveMnu[i], &QAction::triggered, this, [this, i] {
            Guarded([this, i] { i == kDeleteItem ? DeleteTune() : MoveTune(static_cast<GridMove>(i)); });
        });
    }
    PopPosiMnu->insertSeparator(MoveMnu[kDeleteItem]);
    connect(PopPosiMnu, &QMenu::hovered, this, [this](const QAction* item) {
        ShowHint(item == MoveMnu[kDeleteItem] ? QString::fromLatin1(kDeleteHint) : QString());
    });
}

void TuneFrm2::SetTabOrders()
{
    QWidget* before = ShowAllPic;
    for (const char* name : {"TunePic", "TestPlayBtn", "RndTuneBtn", "NewTuneBtn", "ChangePicBtn", "SaveTuneBtn",
                             "DeleteTuneBtn", "HelpBtn", "OkBtn", "CancelBtn"}) {
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
    PutAt(*TunePic, plan.tunePic);
    PutAt(*TuneNameLbl, plan.tuneNameLbl);
    PutAt(*CreatedByLbl, plan.createdByLbl);
    std::size_t tool = 0;
    for (const char* name :
         {"TestPlayBtn", "RndTuneBtn", "NewTuneBtn", "ChangePicBtn", "SaveTuneBtn", "DeleteTuneBtn", "HelpBtn"})
        PutAt(*findChild<QWidget*>(QString::fromLatin1(name)), plan.tools[tool++]);
    PutAt(*findChild<QWidget*>(QStringLiteral("OkBtn")), plan.okBtn);
    PutAt(*findChild<QWidget*>(QStringLiteral("CancelBtn")), plan.cancelBtn);
    PutAt(*editor, plan.editor);
}

void TuneFrm2::Open()
{
    FitTo(screen()->availableGeometry().size());
    TakeTuneTable();
    ShowAllPic->SetTopRow(1);
    showsEditorsTune = true;
    editor->UpdateThisTune(); // no tune of the table may replace it
    Guarded([this] { FindChosenTune(); });
    ShowAllPic->BringIntoView(SelectedTune);
    ShowAllPic->setFocus();
    ShowModal();
    editor->HidePlayMarks();
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
    if (SelectedTune == 0 && !ChosenTuneName.empty())
        SelectedTune = kNothingChosen;
    RefreshShowAllPic();
}

void TuneFrm2::RefreshShowAllPic()
{
    const bool isNewTune = NewTuneMode;
    NewTuneMode = false;
    if (isNewTune)
        SelectedTune = kNothingChosen;
    if (Shared().TuneTableCount < 1)
        return ShowNoTunes();
    if (SelectedTune == 0)
        ChooseFirstTune();
    ShowAllPic->SetSelected(SelectedTune);
    ShowAllPic->RefreshShowAllPic();
    ShowsEditorsTune() ? ShowEditorsTune() : ShowSelectedTune();
}

void TuneFrm2::ChooseFirstTune()
{
    SelectedTune = 1;
    showsEditorsTune = false;
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

void TuneFrm2::ShowEditorsTune()
{
    const Tune& tune = Shared().CurrentTune;
    ShowTune(tune.Name, tune.CreatedBy, tune.Picture);
}

void TuneFrm2::ShowNames(const std::string& name, const std::string& author)
{
    SetFittingText(*TuneNameLbl, QtText(name));
    SetFittingText(*CreatedByLbl, QtText(author));
}

void TuneFrm2::ShowTune(const std::string& name, const std::string& author, const Picture& picture)
{
    ShowNames(name, author);
    TunePic->SetPicture(picture);
    TunePic->setAccessibleName(QtText(name));
}

void TuneFrm2::UpdateThisTune()
{
    ShowEditorsTune();
    editor->UpdateThisTune();
}

void TuneFrm2::ChooseTune(std::int32_t index, Qt::MouseButton button, QPoint at)
{
    if (index == SelectedTune && showsEditorsTune && button == Qt::LeftButton)
        return TestPlayBtn();
    if (IsInTuneTable(index)) {
        SelectedTune = index;
        showsEditorsTune = false;
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

void TuneFrm2::reject()
{
    Guarded([this] { CancelBtn(); });
}

void TuneFrm2::HearByKey(const QKeyEvent& event)
{
    if (!event.isAutoRepeat()) // holding the key must not restart the tune again and again
        Guarded([this] { TestPlayBtn(); });
}

void TuneFrm2::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space)
        HearByKey(*event);
    else
        BandedForm::keyPressEvent(event);
}

bool TuneFrm2::eventFilter(QObject* watched, QEvent* event)
{
    // In the grid, Space plays the current tune including its edits.
    if (watched == ShowAllPic && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        HearByKey(static_cast<QKeyEvent&>(*event));
        return true;
    }
    return BandedForm::eventFilter(watched, event);
}

} // namespace sprout
