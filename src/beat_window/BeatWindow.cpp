// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/BeatWindow.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
#include <exception>

#include "core/Busy.h"
#include "core/Errors.h"
#include "core/Paths.h"
#include "core/Shared.h"
#include "service/Messages.h"
#include "sound/PlayMod.h"
#include "ui/Dialogs.h"
#include "ui/Guarded.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/QtText.h"

namespace sprout {

namespace {

constexpr int kMargin = 16;
constexpr int kGridRows = 8;
constexpr int kNoteTop = 8;
constexpr int kNoteHeight = 26;
constexpr int kGap = 8;
constexpr int kRowGap = 12;
constexpr int kNameHeight = 44; // two lines
constexpr int kDurationHeight = 22;

constexpr std::string_view kNote = "Click on a picture to choose a beat";
constexpr std::string_view kSelectHint = "Click on a picture to select a beat";

struct PlainHint {
    const char* name;
    std::string_view hint;
};

constexpr std::array kHints{
    PlainHint{"ShowAllPic", "Click on a picture to choose a beat"},
    PlainHint{"BlinkSelectImg", "This is the chosen Beat. Click on it to play"},
    PlainHint{"ChoosenPic", "That shows the selected beat, click on it to play this beat"},
    PlainHint{"NmLbl", "That shows the name of the selected beat"},
    PlainHint{"DurLbl", "That shows the duration of the selected beat"},
};

void HintBeat(std::string_view text)
{
    ShowHint(QtText(text));
}

} // namespace

BeatWindow::BeatWindow(QWidget* parent) : BandedForm(parent)
{
    setObjectName(QStringLiteral("BeatWindow"));
    SetCaption(" Choose a Beat");
    MakeLabels();
    MakeGrid();
    MakeChoice();
    MakeButtons();
    MakeMoveMnu();
    PlaceControls();
    for (const PlainHint& row : kHints)
        Watcher().Watch(*findChild<QWidget*>(QString::fromLatin1(row.name)), row.hint);
    ShowAllPic->setFocus();
}

void BeatWindow::MakeLabels()
{
    NoteLbl = &AddLabel("NoteLbl");
    NmLbl = &AddLabel("NmLbl");
    DurLbl = &AddLabel("DurLbl");
    NmLbl->setFont(ButtonFont());
    for (QLabel* label : {NmLbl, DurLbl}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    }
}

void BeatWindow::MakeGrid()
{
    ShowAllPic = new PictureGridPic(kBeatColumns, this);
    ShowAllPic->setObjectName(QStringLiteral("ShowAllPic"));
    ShowAllPic->setAccessibleName(tr("Beats"));
    connect(ShowAllPic, &PictureGridPic::Pressed, this,
            [this](int index, Qt::MouseButton button, QPoint at) { Guarded([&] { PressGrid(index, button, at); }); });
}

void BeatWindow::MakeChoice()
{
    ChoosenPic = new ChoosenPicture(this);
    connect(ChoosenPic, &QAbstractButton::clicked, this, [this] { Guarded([this] { ClickPlay(); }); });
}

void BeatWindow::MakeButtons()
{
    OkBtn = &AddWordButton({"OkBtn", "OK", "Click Ok after choosing a beat", Plate::Word, kDeepLeaf},
                           [this] { Guarded([this] { ClickOk(); }); });
    CancelBtn = &AddWordButton({"CancelBtn", "Cancel", "", Plate::Word, kStone}, [this] { reject(); });
    TestPlayBtn = &AddWordButton(
        {"TestPlayBtn", "Play", "Play button, click on it to play selected beat", Plate::Tool, {}, "PlayToolBtn"},
        [this] { Guarded([this] { ClickPlay(); }); });
    columnButtons = {
        &AddWordButton({"AddBtn", "Add", "Adds more beats with your wav file", Plate::Word, kLink, "WordAdd"},
                       [this] { Try("Error adding beat", &BeatWindow::AddBeat); }),
        &AddWordButton({"RenameBtn", "Rename", "Renames the beat", Plate::Word, kLink, "WordRename"},
                       [this] { Try("Error renaming beat", &BeatWindow::RenameBeat); }),
        &AddWordButton(
            {"DeleteBtn", "Delete", "This button will deletes the selected beat", Plate::Word, kCoral, "WordDelete"},
            [this] { Try("Error deleting beat", &BeatWindow::DeleteBeat); }),
        &AddWordButton({"HelpBtn", "Help", "", Plate::Word, kBerry, "WordHelp"}, [this] { ClickHelp(); })};
}

void BeatWindow::MakeMoveMnu()
{
    PopPosiMnu = new QMenu(this);
    PopPosiMnu->setObjectName(QStringLiteral("PopPosiMnu"));
    for (std::size_t i = 0; i < MoveMnu.size(); ++i) {
        MoveMnu[i] = PopPosiMnu->addAction(QtText(kBeatMoveCaptions[i]));
        connect(MoveMnu[i], &QAction::triggered, this,
                [this, i] { Guarded([this, i] { MoveSelected(static_cast<BeatMove>(i)); }); });
    }
}

void BeatWindow::PlaceControls()
{
    const int gridTop = kNoteTop + kNoteHeight + kGap / 2;
    const QRect grid = ShowAllPic->PlaceAt(BodyPoint(kMargin, gridTop), kGridRows);
    NoteLbl->setGeometry({BodyPoint(kMargin, kNoteTop), QSize(grid.width(), kNoteHeight)});
    PlaceColumn(grid.right() + 1 + kMargin, gridTop);
    const int rowTop = gridTop + grid.height() + kRowGap;
    OkBtn->move(BodyPoint(kMargin, rowTop));
    CancelBtn->move(BodyPoint(kMargin + OkBtn->width() + kRowGap, rowTop));
    resize(width(), kBandHeight + rowTop + OkBtn->height() + kRowGap);
}

void BeatWindow::PlaceColumn(int left, int top)
{
    int columnWidth = ChoosenPic->width() + kGap + TestPlayBtn->width();
    for (const ImageButton* button : columnButtons)
        columnWidth = std::max(columnWidth, button->sizeHint().width());
    const int spare = columnWidth - ChoosenPic->width() - kGap - TestPlayBtn->width();
    ChoosenPic->move(BodyPoint(left + spare / 2, top));
    TestPlayBtn->move(
        BodyPoint(left + spare / 2 + ChoosenPic->width() + kGap, top + ChoosenPic->height() - TestPlayBtn->height()));
    top += ChoosenPic->height() + kGap / 2;
    NmLbl->setGeometry({BodyPoint(left, top), QSize(columnWidth, kNameHeight)});
    top += kNameHeight;
    DurLbl->setGeometry({BodyPoint(left, top), QSize(columnWidth, kDurationHeight)});
    top += kDurationHeight + kRowGap;
    for (ImageButton* button : columnButtons) {
        button->setGeometry({BodyPoint(left, top), QSize(columnWidth, button->height())});
        top += button->height() + kGap;
    }
    resize(left + columnWidth + kMargin, height());
}

void BeatWindow::LoadBeatFiles()
{
    const Hourglass hourglass;
    sprout::LoadBeatFiles(table, ChosenBeatName);
    FillGrid();
    ShowAllPic->SetTopRow(1);
    RefreshShowAllPic();
}

void BeatWindow::FillGrid()
{
    std::vector<GridEntry> entries;
    entries.reserve(table.BeatList.size());
    for (std::int32_t i = 1; i <= table.BeatListCount; ++i) {
        const Beat& beat = At(table.BeatList, i);
        entries.push_back({beat.Picture, beat.Name, table.BeatProtected[static_cast<std::size_t>(i)]});
    }
    ShowAllPic->SetEntries(entries);
}

void BeatWindow::RefreshShowAllPic()
{
    ShowAllPic->SetSelected(table.SelectedBeat);
    ShowAllPic->RefreshShowAllPic();
    if (table.BeatListCount == 0)
        ShowNoBeats();
    else if (HasSelection(table))
        ShowChoice();
    else
        ShowNoChoice();
}

void BeatWindow::ShowNoBeats()
{
    NoteLbl->setText(tr("No beat file found"));
    ShowAllPic->SetLines({tr(" No beat file found to show here."),
                          tr(" Beats folder: %1").arg(QtText(PathText(Shared().UserBeats))),
                          tr(" This needs beat '.wav' file and 32x32 picture '.bmp' file as pair."),
                          tr(" Please reinstall the software.")});
    ChoosenPic->ShowPicture({});
    NmLbl->setText(tr("[none]"));
    DurLbl->setText(QStringLiteral(" "));
}

void BeatWindow::ShowChoice()
{
    NoteLbl->setText(QtText(kNote));
    NmLbl->setText(QtText(SelectedEntry(table).Name));
    ChoosenPic->ShowPicture(SelectedEntry(table).Picture);
    LoadSelectedSound(table);
    DurLbl->setText(QtText(DurationText(SelectedEntry(table).Sound)));
}

void BeatWindow::ShowNoChoice()
{
    NoteLbl->setText(QtText(kNote));
    NmLbl->setText(tr("[none]"));
    DurLbl->setText(QStringLiteral(" "));
    ChoosenPic->ShowPicture({});
}

void BeatWindow::PressGrid(int index, Qt::MouseButton button, QPoint at)
{
    if (index != 0)
        table.SelectedBeat = index;
    RefreshShowAllPic();
    if (index == 0)
        return;
    if (button == Qt::LeftButton)
        PlaySelectedBeat();
    else if (button == Qt::RightButton)
        OpenMoveMnu(at);
}

void BeatWindow::OpenMoveMnu(QPoint at)
{
    for (std::size_t i = 0; i < MoveMnu.size(); ++i)
        MoveMnu[i]->setEnabled(MoveTarget(table, static_cast<BeatMove>(i)) != 0);
    PopPosiMnu->popup(at);
}

void BeatWindow::MoveSelected(BeatMove move)
{
    if (!MoveBeat(table, move))
        return;
    FillGrid();
    RefreshShowAllPic();
}

void BeatWindow::PlaySelectedBeat()
{
    if (!HasSelection(table))
        return;
    LoadSelectedSound(table);
    PlayWaveStatus(SelectedEntry(table).Sound, "Playing Beat", Loop::No);
}

void BeatWindow::ClickPlay()
{
    if (HasSelection(table))
        return PlaySelectedBeat();
    HintBeat(kSelectHint);
    ShowMessage("Select a Beat first.");
    HintBeat("");
}

void BeatWindow::ClickOk()
{
    Player().StopPlay();
    SaveBeatOrder(table);
    OkPressed = HasSelection(table);
    if (OkPressed)
        ChosenBeatName = SelectedEntry(table).Name;
    LeaveWindow();
    Answer(OkPressed ? 1 : 0);
}

void BeatWindow::reject()
{
    Guarded([] { Player().StopPlay(); });
    OkPressed = false;
    LeaveWindow();
    BandedForm::reject();
}

void BeatWindow::LeaveWindow()
{
    table.SelectedBeat = 0;
    HintBeat("");
    ShowAllPic->BlinkSelectedTimer().stop();
}

void BeatWindow::ClickHelp()
{
    QKeyEvent help(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &help);
}

void BeatWindow::Try(std::string_view text, void (BeatWindow::*command)())
{
    try {
        (this->*command)();
    } catch (const std::exception& error) {
        TheServices().messages->MessageBox("", std::string(text) + "\r\n" + ErrorText(error));
        // A part of it may have been done: the list shows what the folder holds now.
        Guarded([this] { LoadBeatFiles(); });
    }
}

} // namespace sprout
