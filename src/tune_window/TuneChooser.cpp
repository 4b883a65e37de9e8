// SPDX-License-Identifier: GPL-3.0-or-later
#include "tune_window/TuneChooser.h"

#include <QLabel>

#include <utility>

#include "core/Shared.h"
#include "tune_window/OpenTuneWindow.h"
#include "tune_window/TuneFileCommands.h"
#include "tune_window/TuneGrid.h"
#include "tune_window/TunePicture.h"
#include "tunes/TuneNames.h"
#include "tunes/TuneTable.h"
#include "ui/forms/Dialogs.h"
#include "ui/forms/Guarded.h"
#include "ui/look/Look.h"
#include "ui/rules/PictureGrid.h"
#include "ui/widgets/PutAt.h"
#include "ui/words/Texts.h"

namespace sprout {

namespace {

QLabel* MakeTuneLabel(const char* name, const QFont& font, QWidget* window)
{
    auto* label = new QLabel(window);
    label->setObjectName(QString::fromLatin1(name));
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

TuneChooser::TuneChooser(QWidget* window) : QObject(window)
{
    MakeGrid(window);
    MakeChosenTune(window);
    MakeMoveMnu(window);
}

void TuneChooser::MakeGrid(QWidget* window)
{
    grid = new TuneGrid(window);
    hints.Watch(*grid, Words::Text("Click on a picture to choose a tune"));
    hints.Watch(grid->BlinkSelectImg(), Words::Text("This is the chosen Tune. Click on it to play"));
    connect(grid, &PictureGridPic::Pressed, this, [this](int index, Qt::MouseButton button, QPoint at) {
        Guarded([=, this] { ChooseTune(index, button, at); });
    });
    connect(grid, &PictureGridPic::DoubleClicked, this, &TuneChooser::TuneAccepted);
    connect(grid, &PictureGridPic::DeleteWanted, this, [this] { Guarded([this] { DeleteTune(); }); });
}

void TuneChooser::MakeChosenTune(QWidget* window)
{
    shown.TunePic = new TunePicture(window);
    shown.TunePic->setObjectName(QStringLiteral("TunePic"));
    hints.Watch(*shown.TunePic, Words::Text("That shows the selected tune"));
    connect(shown.TunePic, &QAbstractButton::clicked, this, [this] { Guarded([this] { ClickTunePic(); }); });
    shown.TuneNameLbl = MakeTuneLabel("TuneNameLbl", TitleFont(), window);
    hints.Watch(*shown.TuneNameLbl, Words::Text("That shows the name of the selected tune"));
    shown.CreatedByLbl = MakeTuneLabel("CreatedByLbl", LabelFont(), window);
    hints.Watch(*shown.CreatedByLbl, Words::Text("That shows who created the selected tune"));
}

void TuneChooser::MakeMoveMnu(QWidget* window)
{
    PopPosiMnu = new GridMoveMenu(window);
    connect(PopPosiMnu, &GridMoveMenu::MoveWanted, this,
            [this](GridMove move) { Guarded([this, move] { MoveTune(move); }); });
    int number = 0;
    for (QAction* const item : PopPosiMnu->actions())
        item->setObjectName(QStringLiteral("MoveMnu%1").arg(number++));
    PopPosiMnu->addSeparator();
    QAction* const deletion = AddItem(*PopPosiMnu, Words::Text("Delete"));
    deletion->setObjectName(QStringLiteral("MoveMnu%1").arg(number));
    connect(deletion, &QAction::triggered, this, [this] { Guarded([this] { DeleteTune(); }); });
    connect(this, &TuneChooser::DeletionOffered, deletion, &QAction::setVisible);
    connect(PopPosiMnu, &QMenu::hovered, this,
            [deletion](const QAction* item) { ShowHint(item == deletion ? kDeleteTuneHint : LaterWords()); });
}

void TuneChooser::PlaceAt(const TuneWindowPlan& plan)
{
    grid->PlaceAt({plan.grid.left, plan.grid.top}, plan.gridRows);
    PutAt(*shown.TunePic, plan.tunePic);
    PutAt(*shown.TuneNameLbl, plan.tuneNameLbl);
    PutAt(*shown.CreatedByLbl, plan.createdByLbl);
}

void TuneChooser::BeginWithEditorsTune()
{
    grid->TakeTuneTable();
    grid->SetTopRow(1);
    choice.StartWithEditor();
}

void TuneChooser::BringIntoView()
{
    grid->BringIntoView(choice.SelectedTune());
}

const Tune* TuneChooser::ChosenTune() const
{
    return choice.HasTune() ? &At(Shared().TuneTable, choice.SelectedTune()) : nullptr;
}

void TuneChooser::RefreshShowAllPic()
{
    const bool keepsSound = choice.ChooseFirstIfOpen();
    ShowChosenTune();
    Q_EMIT DeletionOffered(IsDeletionOffered(ChosenTune()));
    if (keepsSound)
        KeepSound();
}

void TuneChooser::ShowChosenTune()
{
    if (Shared().TuneTableCount < 1) {
        grid->ShowNoTunes();
        return shown.ShowTune(Words::Text("[none]"), {}, {});
    }
    grid->ShowSelection(choice.SelectedTune());
    if (choice.ShowsEditorsTune())
        return ShowEditorsTune();
    const Tune& tune = At(Shared().TuneTable, choice.SelectedTune());
    shown.ShowTune(Words::AsIs(tune.Name), Words::Text("By: %1", tune.CreatedBy), tune.Picture);
}

void TuneChooser::ShowEditorsTune()
{
    const Tune& tune = Shared().CurrentTune;
    shown.ShowTune(Words::AsIs(tune.Name), Words::AsIs(tune.CreatedBy), tune.Picture);
}

void TuneChooser::ChooseTune(std::int32_t index, Qt::MouseButton button, QPoint at)
{
    if (index == choice.SelectedTune() && choice.StartedWithEditor() && button == Qt::LeftButton)
        return Q_EMIT EditorsTunePlayWanted();
    if (IsInTuneTable(index))
        choice.Choose(index);
    RefreshShowAllPic();
    if (!IsInTuneTable(index))
        return;
    if (button == Qt::LeftButton)
        PlayChosenTune();
    else if (button == Qt::RightButton)
        PopPosiMnu->OpenFor(choice.SelectedTune(), Shared().TuneTableCount, kTuneColumns, at);
}

void TuneChooser::PlayChosenTune()
{
    if (choice.Play())
        KeepSound();
}

void TuneChooser::KeepSound()
{
    // The disk may be slow; show the tune before that. This also draws what else has changed in the window.
    grid->repaint();
    choice.KeepSound();
}

void TuneChooser::ClickTunePic()
{
    if (choice.StartedWithEditor())
        return Q_EMIT EditorsTunePlayWanted();
    if (choice.HasTune())
        return PlayChosenTune();
    ShowHint(Words::Text("Click on a picture to select a tune"));
    ShowMessage(Words::Text("Select a Tune first."));
    ShowHint({});
}

void TuneChooser::MoveTune(GridMove move)
{
    const std::int32_t selected = choice.SelectedTune();
    const std::int32_t target = GridMoveTarget(move, selected, Shared().TuneTableCount, kTuneColumns);
    if (target == 0)
        return;
    std::swap(At(Shared().TuneTable, selected), At(Shared().TuneTable, target));
    choice.Follow(target);
    grid->TakeTuneTable();
    RefreshShowAllPic();
}

void TuneChooser::DeleteTune()
{
    const Tune* const tune = ChosenTune();
    if (MayDeleteTune(tune)) {
        DeleteTuneFiles(tune->Name);
        SaveTuneOrder();
        ReadTunesAgain();
        choice.ChooseNothing(); // the editor keeps its tune
        RefreshShowAllPic();
    }
    ShowHint({});
}

void TuneChooser::ReadTunesAgain()
{
    Shared().TuneTableCount = 0;
    LoadTuneFiles();
    grid->TakeTuneTable();
}

void TuneChooser::ShowSavedTune()
{
    shown.ShowNames(Words::AsIs(Shared().CurrentTune.Name), Words::AsIs(Shared().CurrentTune.CreatedBy));
    ReadTunesAgain();
    // The last one, wherever the saved tune is.
    choice.TakeEditorsTune(Shared().TuneTableCount);
    RefreshShowAllPic();
    SaveTuneOrder();
}

void TuneChooser::Leave()
{
    choice.Forget();
    grid->BlinkSelectedTimer().stop();
}

} // namespace sprout
