// SPDX-License-Identifier: GPL-3.0-or-later
#include "beat_window/BeatWindow.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/Busy.h"
#include "sound/PlayMod.h"
#include "ui/Windows.h"
#include "ui/forms/Guarded.h"
#include "ui/look/Palette.h"
#include "ui/rules/HintRow.h"
#include "ui/rules/PictureGrid.h"
#include "ui/widgets/FreeRoom.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/PutAt.h"
#include "ui/words/QtText.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

constexpr LaterWords kBeatNote = Words::Later("Click on a picture to choose a beat");

constexpr std::array kBeatHints{
    HintRow{"ShowAllPic", Words::Later("Click on a picture to choose a beat")},
    HintRow{"BlinkSelectImg", Words::Later("This is the chosen Beat. Click on it to play")},
    HintRow{"ChoosenPic", Words::Later("That shows the selected beat, click on it to play this beat")},
    HintRow{"NmLbl", Words::Later("That shows the name of the selected beat")},
    HintRow{"DurLbl", Words::Later("That shows the duration of the selected beat")},
};

} // namespace

BeatWindow::BeatWindow(QWidget* parent) : BandedForm(parent)
{
    setObjectName(QStringLiteral("BeatWindow"));
    SetCaption(Words::Text(" Choose a Beat"));
    ShowHintsInBand();
    MakeLabels();
    MakeGrid();
    MakeChoice();
    MakeButtons();
    MakeMoveMnu();
    PlaceControls();
    for (const HintRow& row : kBeatHints)
        Watcher().Watch(*findChild<QWidget*>(QtText(row.name)), row.hint);
    ShowAllPic->setFocus();
}

void BeatWindow::MakeLabels()
{
    NoteLbl = &AddLabel("NoteLbl");
    chosen.NmLbl = new NameLabel(this);
    chosen.NmLbl->setObjectName(QStringLiteral("NmLbl"));
    chosen.DurLbl = &AddLabel("DurLbl");
    chosen.DurLbl->setWordWrap(true);
    chosen.DurLbl->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

void BeatWindow::MakeGrid()
{
    ShowAllPic = new BeatGrid(this);
    connect(ShowAllPic, &PictureGridPic::Pressed, this,
            [this](int index, Qt::MouseButton button, QPoint at) { Guarded([&] { PressGrid(index, button, at); }); });
    connect(ShowAllPic, &PictureGridPic::DoubleClicked, this, [this] { Guarded([this] { ClickOk(); }); });
    connect(ShowAllPic, &PictureGridPic::DeleteWanted, this, [this] { Guarded([this] { commands.DeleteBeat(); }); });
}

void BeatWindow::MakeChoice()
{
    chosen.ChoosenPic = new ChoosenPicture(this);
    connect(chosen.ChoosenPic, &QAbstractButton::clicked, this, [this] { Guarded([this] { ClickPlay(); }); });
}

void BeatWindow::MakeButtons()
{
    const auto add = [this](const ButtonRow& row, void (BeatWindow::*click)()) {
        return &AddWordButton(row, [this, click] { Guarded([&] { (this->*click)(); }); });
    };
    OkBtn = add({"OkBtn", Words::Later("OK"), Words::Later("Click Ok after choosing a beat"), Plate::Word, kDeepLeaf},
                &BeatWindow::ClickOk);
    CancelBtn = add({"CancelBtn", Words::Later("Cancel"),
                     Words::Later("Cancel button, use it to leave the beat as it was"), Plate::Word, kStone},
                    &BeatWindow::reject);
    TestPlayBtn = add({"TestPlayBtn",
                       Words::Later("Play"),
                       Words::Later("Play button, click on it to play selected beat"),
                       Plate::Tool,
                       {},
                       "TrackPlayBtn"},
                      &BeatWindow::ClickPlay);
    AddBtn = add({"AddBtn", Words::Later("Add"), Words::Later("Adds more beats with your wav file"), Plate::Word, kLink,
                  "WordAdd"},
                 &BeatWindow::ClickAdd);
    RenameBtn =
        add({"RenameBtn", Words::Later("Rename"), Words::Later("Renames the beat"), Plate::Word, kLink, "WordRename"},
            &BeatWindow::ClickRename);
    DeleteBtn = add({"DeleteBtn", Words::Later("Delete"), Words::Later("This button will deletes the selected beat"),
                     Plate::Word, kCoral, "WordDelete"},
                    &BeatWindow::ClickDelete);
    HelpBtn = add({"HelpBtn", Words::Later("Help"), Words::Later("Help button, use it to see help"), Plate::Word,
                   kBerry, "WordHelp"},
                  &BeatWindow::ClickHelp);
}

void BeatWindow::MakeMoveMnu()
{
    PopPosiMnu = new GridMoveMenu(this);
    connect(PopPosiMnu, &GridMoveMenu::MoveWanted, this,
            [this](GridMove move) { Guarded([this, move] { MoveSelected(move); }); });
}

BeatWindowNeeds BeatWindow::Needs() const
{
    const QSize gridFrame = PictureGridPic::FrameSize(kBeatColumns, 0);
    BeatWindowNeeds needs;
    needs.screenHeight = FreeRoom(*this).height();
    needs.bandHeight = kBandHeight;
    needs.gridFrame = {gridFrame.width(), gridFrame.height()};
    needs.beats = table.BeatListCount;
    needs.choosenPic = SizeOf(*chosen.ChoosenPic);
    needs.testPlayBtn = SizeOf(*TestPlayBtn);
    for (const ImageButton* button : {AddBtn, RenameBtn, DeleteBtn, HelpBtn})
        needs.columnWidth = std::max(needs.columnWidth, button->sizeHint().width());
    needs.columnHeights = {AddBtn->height(), RenameBtn->height(), DeleteBtn->height()};
    needs.helpHeight = HelpBtn->height();
    needs.okBtn = SizeOf(*OkBtn);
    needs.cancelBtn = SizeOf(*CancelBtn);
    return needs;
}

void BeatWindow::PlaceControls()
{
    const BeatWindowPlan plan = PlanBeatWindow(Needs());
    resize(plan.width, plan.height);
    ShowAllPic->PlaceAt({plan.grid.left, plan.grid.top}, plan.gridRows);
    PutAt(*NoteLbl, plan.noteLbl);
    PutAt(*chosen.ChoosenPic, plan.choosenPic);
    PutAt(*TestPlayBtn, plan.testPlayBtn);
    PutAt(*chosen.NmLbl, plan.nmLbl);
    PutAt(*chosen.DurLbl, plan.durLbl);
    PutAt(*AddBtn, plan.columnButtons[0]);
    PutAt(*RenameBtn, plan.columnButtons[1]);
    PutAt(*DeleteBtn, plan.columnButtons[2]);
    PutAt(*OkBtn, plan.okBtn);
    PutAt(*CancelBtn, plan.cancelBtn);
    PutAt(*HelpBtn, plan.helpBtn);
}

void BeatWindow::LoadBeatFiles()
{
    const Hourglass hourglass;
    sprout::LoadBeatFiles(table, ChosenBeatName);
    ShowAllPic->ShowBeats(table);
    if (!isVisible()) // an open window keeps its size
        PlaceControls();
    ShowAllPic->SetTopRow(1);
    RefreshShowAllPic();
}

void BeatWindow::RefreshShowAllPic()
{
    ShowAllPic->ShowSelection(table);
    SetText(*NoteLbl, table.BeatListCount == 0 ? Words::Text("No beat file found") : kBeatNote);
    chosen.Show(table);
}

void BeatWindow::PressGrid(int index, Qt::MouseButton button, QPoint at)
{
    if (index != 0)
        table.SelectedBeat = index;
    RefreshShowAllPic();
    if (index == 0)
        return;
    if (button == Qt::LeftButton)
        PlaySelectedBeat(table);
    else if (button == Qt::RightButton)
        PopPosiMnu->OpenFor(table.SelectedBeat, table.BeatListCount, kBeatColumns, at);
}

void BeatWindow::MoveSelected(GridMove move)
{
    const std::int32_t target = GridMoveTarget(move, table.SelectedBeat, table.BeatListCount, kBeatColumns);
    if (target == 0)
        return;
    MoveBeatTo(table, target);
    ShowAllPic->ShowBeats(table);
    RefreshShowAllPic();
}

void BeatWindow::ClickPlay()
{
    PlayChosenBeat(table);
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
    ShowHint({});
    ShowAllPic->BlinkSelectedTimer().stop();
}

void BeatWindow::ClickHelp()
{
    TheWindows().ShowHelp();
}

} // namespace sprout
