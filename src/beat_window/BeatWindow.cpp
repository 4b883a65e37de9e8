// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/BeatWindow.h"

#include <QScreen>

#include <algorithm>
#include <exception>
#include <vector>

#include "base/Errors.h"
#include "base/FilePaths.h"
#include "core/Busy.h"
#include "core/Shared.h"
#include "service/Messages.h"
#include "sound/PlayMod.h"
#include "ui/Dialogs.h"
#include "ui/Guarded.h"
#include "ui/HelpFrm.h"
#include "ui/Look.h"
#include "ui/Palette.h"
#include "ui/QtText.h"

namespace sprout {

namespace {

constexpr std::int32_t kBeatColumns = 12;
constexpr std::int32_t kFewestBeatRows = 8;
constexpr int kBeatMargin = 16;
constexpr int kBeatNoteTop = 8;
constexpr int kBeatNoteHeight = 26;
constexpr int kBeatGap = 8;
constexpr int kBeatRowGap = 12;
constexpr int kBeatNameHeight = 48; // two lines
constexpr int kBeatDurationHeight = 46;
constexpr int kBeatGridTop = kBeatNoteTop + kBeatNoteHeight + kBeatGap / 2;

constexpr std::string_view kBeatNote = "Click on a picture to choose a beat";
constexpr std::string_view kSelectBeatHint = "Click on a picture to select a beat";

constexpr std::array kBeatHints{
    HintRow{"ShowAllPic", "Click on a picture to choose a beat"},
    HintRow{"BlinkSelectImg", "This is the chosen Beat. Click on it to play"},
    HintRow{"ChoosenPic", "That shows the selected beat, click on it to play this beat"},
    HintRow{"NmLbl", "That shows the name of the selected beat"},
    HintRow{"DurLbl", "That shows the duration of the selected beat"},
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
    ShowHintsInBand();
    MakeLabels();
    MakeGrid();
    MakeChoice();
    MakeButtons();
    MakeMoveMnu();
    PlaceControls(FittingRows());
    for (const HintRow& row : kBeatHints)
        Watcher().Watch(*findChild<QWidget*>(QtText(row.name)), row.hint);
    ShowAllPic->setFocus();
}

void BeatWindow::MakeLabels()
{
    NoteLbl = &AddLabel("NoteLbl");
    NmLbl = new NameLabel(this);
    NmLbl->setObjectName(QStringLiteral("NmLbl"));
    DurLbl = &AddLabel("DurLbl");
    DurLbl->setWordWrap(true);
    DurLbl->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

void BeatWindow::MakeGrid()
{
    ShowAllPic = new PictureGridPic(kBeatColumns, this);
    ShowAllPic->setObjectName(QStringLiteral("ShowAllPic"));
    ShowAllPic->setAccessibleName(tr("Beats"));
    connect(ShowAllPic, &PictureGridPic::Pressed, this,
            [this](int index, Qt::MouseButton button, QPoint at) { Guarded([&] { PressGrid(index, button, at); }); });
    connect(ShowAllPic, &PictureGridPic::DoubleClicked, this, [this] { Guarded([this] { ClickOk(); }); });
    connect(ShowAllPic, &PictureGridPic::DeleteWanted, this, [this] { Guarded([this] { ClickDelete(); }); });
}

void BeatWindow::MakeChoice()
{
    ChoosenPic = new ChoosenPicture(this);
    connect(ChoosenPic, &QAbstractButton::clicked, this, [this] { Guarded([this] { ClickPlay(); }); });
}

void BeatWindow::MakeButtons()
{
    struct Row {
        ButtonRow button;
        ImageButton* BeatWindow::*member = nullptr;
        void (BeatWindow::*click)() = nullptr;
    };
    static constexpr std::array rows{
        Row{{"OkBtn", "OK", "Click Ok after choosing a beat", Plate::Word, kDeepLeaf},
            &BeatWindow::OkBtn,
            &BeatWindow::ClickOk},
        Row{{"CancelBtn", "Cancel", "Cancel button, use it to leave the beat as it was", Plate::Word, kStone},
            &BeatWindow::CancelBtn,
            &BeatWindow::reject},
        Row{{"TestPlayBtn", "Play", "Play button, click on it to play selected beat", Plate::Tool, {}, "TrackPlayBtn"},
            &BeatWindow::TestPlayBtn,
            &BeatWindow::ClickPlay},
        Row{{"AddBtn", "Add", "Adds more beats with your wav file", Plate::Word, kLink, "WordAdd"},
            &BeatWindow::AddBtn,
            &BeatWindow::ClickAdd},
        Row{{"RenameBtn", "Rename", "Renames the beat", Plate::Word, kLink, "WordRename"},
            &BeatWindow::RenameBtn,
            &BeatWindow::ClickRename},
        Row{{"DeleteBtn", "Delete", "This button will deletes the selected beat", Plate::Word, kCoral, "WordDelete"},
            &BeatWindow::DeleteBtn,
            &BeatWindow::ClickDelete},
        Row{{"HelpBtn", "Help", "Help button, use it to see help", Plate::Word, kBerry, "WordHelp"},
            &BeatWindow::HelpBtn,
            &BeatWindow::ClickHelp}};
    for (const Row& row : rows)
        this->*row.member = &AddWordButton(row.button, [this, &row] { Guarded([&] { (this->*row.click)(); }); });
}

void BeatWindow::MakeMoveMnu()
{
    PopPosiMnu = new QMenu(this);
    PopPosiMnu->setObjectName(QStringLiteral("PopPosiMnu"));
    for (std::size_t i = 0; i < MoveMnu.size(); ++i) {
        MoveMnu[i] = PopPosiMnu->addAction(QtText(kGridMoveCaptions[i]));
        connect(MoveMnu[i], &QAction::triggered, this,
                [this, i] { Guarded([this, i] { MoveSelected(static_cast<GridMove>(i)); }); });
    }
}

/// The rows that the list needs and the screen has room for.
int BeatWindow::FittingRows() const
{
    const int frameHeight = PictureGridPic::FrameSize(kBeatColumns, 0).height();
    const int beside = kBandHeight + kBeatGridTop + frameHeight + OkBtn->height() + 2 * kBeatRowGap;
    return FittingGridRows({.count = table.BeatListCount,
                            .columns = kBeatColumns,
                            .wantedRows = kFewestBeatRows,
                            .roomPx = screen()->availableGeometry().height() - beside,
                            .fewestRows = kFewestBeatRows});
}

void BeatWindow::PlaceControls(int rows)
{
    const QRect grid = ShowAllPic->PlaceAt(BodyPoint(kBeatMargin, kBeatGridTop), rows);
    NoteLbl->setGeometry({BodyPoint(kBeatMargin, kBeatNoteTop), QSize(grid.width(), kBeatNoteHeight)});
    int columnWidth = ChoosenPic->width() + kBeatGap + TestPlayBtn->width();
    for (const ImageButton* button : {AddBtn, RenameBtn, DeleteBtn, HelpBtn})
        columnWidth = std::max(columnWidth, button->sizeHint().width());
    const QRect column(grid.right() + 1 + kBeatMargin, grid.top(), columnWidth, grid.height());
    PlaceChoice(column);
    PlaceColumn(column);
    const int rowTop = grid.bottom() + 1 + kBeatRowGap;
    OkBtn->move(kBeatMargin, rowTop);
    CancelBtn->move(kBeatMargin + OkBtn->width() + kBeatRowGap, rowTop);
    HelpBtn->setGeometry(column.left(), rowTop, columnWidth, HelpBtn->height());
    resize(column.right() + 1 + kBeatMargin, rowTop + OkBtn->height() + kBeatRowGap);
}

/// Places the picture and the play button side by side at the top, the name and the duration below.
void BeatWindow::PlaceChoice(const QRect& column)
{
    const int pairWidth = ChoosenPic->width() + kBeatGap + TestPlayBtn->width();
    const int left = column.left() + (column.width() - pairWidth) / 2;
    ChoosenPic->move(left, column.top());
    TestPlayBtn->move(left + ChoosenPic->width() + kBeatGap,
                      column.top() + (ChoosenPic->height() - TestPlayBtn->height()) / 2);
    const int nameTop = column.top() + ChoosenPic->height() + kBeatGap / 2;
    NmLbl->setGeometry(column.left(), nameTop, column.width(), kBeatNameHeight);
    DurLbl->setGeometry(column.left(), nameTop + kBeatNameHeight, column.width(), kBeatDurationHeight);
}

/// Places the buttons up from the grid's lower edge.
void BeatWindow::PlaceColumn(const QRect& column)
{
    int bottom = column.bottom() + 1;
    for (ImageButton* button : {DeleteBtn, RenameBtn, AddBtn}) {
        button->setGeometry(column.left(), bottom - button->height(), column.width(), button->height());
        bottom -= button->height() + kBeatGap;
    }
}

void BeatWindow::LoadBeatFiles()
{
    const Hourglass hourglass;
    sprout::LoadBeatFiles(table, ChosenBeatName);
    FillGrid();
    if (!isVisible()) // an open window keeps its size
        PlaceControls(FittingRows());
    ShowAllPic->SetTopRow(1);
    RefreshShowAllPic();
}

void BeatWindow::FillGrid()
{
    std::vector<GridEntry> entries;
    entries.reserve(table.BeatList.size());
    for (std::int32_t i = 1; i <= table.BeatListCount; ++i) {
        const Beat& beat = At(table.BeatList, i);
        entries.push_back(
            {beat.Picture, table.NamesForPeople[beat.Name], table.BeatProtected[static_cast<std::size_t>(i)]});
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
    ChoosenPic->setAccessibleName(NmLbl->text());
}

void BeatWindow::ShowNoBeats()
{
    NoteLbl->setText(tr("No beat file found"));
    ShowAllPic->SetLines({tr(" No beat file found to show here."),
                          tr(" Beats folder: %1").arg(QtText(PathText(Shared().UserBeats))),
                          tr(" This needs beat '.wav' file and 32x32 picture '.bmp' file as pair."),
                          tr(" Please reinstall the software.")});
    ChoosenPic->ShowPicture({});
    NmLbl->ShowName(tr("[none]"));
    DurLbl->setText(QStringLiteral(" "));
}

void BeatWindow::ShowChoice()
{
    NoteLbl->setText(QtText(kBeatNote));
    NmLbl->ShowName(QtText(table.NamesForPeople[SelectedEntry(table).Name]));
    ChoosenPic->ShowPicture(SelectedEntry(table).Picture);
    LoadSelectedSound(table);
    DurLbl->setText(QtText(DurationText(SelectedEntry(table).Sound)));
}

void BeatWindow::ShowNoChoice()
{
    NoteLbl->setText(QtText(kBeatNote));
    NmLbl->ShowName(tr("[none]"));
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
        MoveMnu[i]->setEnabled(MoveTarget(static_cast<GridMove>(i)) != 0);
    PopPosiMnu->popup(at);
}

std::int32_t BeatWindow::MoveTarget(GridMove move) const
{
    return GridMoveTarget(move, table.SelectedBeat, table.BeatListCount, kBeatColumns);
}

void BeatWindow::MoveSelected(GridMove move)
{
    const std::int32_t target = MoveTarget(move);
    if (target == 0)
        return;
    MoveBeatTo(table, target);
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
    HintBeat(kSelectBeatHint);
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
    ShowHelp();
}

void BeatWindow::ClickAdd()
{
    Try("Error adding beat", &BeatWindow::AddBeat);
}

void BeatWindow::ClickRename()
{
    Try("Error renaming beat", &BeatWindow::RenameBeat);
}

void BeatWindow::ClickDelete()
{
    Try("Error deleting beat", &BeatWindow::DeleteBeat);
}

void BeatWindow::Try(std::string_view text, void (BeatWindow::*command)())
{
    try {
        (this->*command)();
    } catch (const std::exception& error) {
        TheServices().messages->MessageBox("", std::string(text) + "\r\n" + ErrorText(error));
        // Part of it may have been done: the list shows what the folder contains now.
        Guarded([this] { LoadBeatFiles(); });
    }
}

} // namespace sprout
