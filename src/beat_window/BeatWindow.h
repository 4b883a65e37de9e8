// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "beat_window/BeatGrid.h"
#include "beat_window/BeatLibraryCommands.h"
#include "beat_window/ChoosenPicture.h"
#include "beat_window/ChosenBeat.h"
#include "beat_window/NameLabel.h"
#include "beat_window/rules/BeatWindowPlan.h"
#include "beats/BeatTable.h"
#include "ui/forms/BandedForm.h"
#include "ui/widgets/GridMoveMenu.h"

namespace sprout {

/// The beat window: all beats of `UserBeats` as a grid of pictures. A click chooses a beat and plays it; buttons add,
/// rename and delete beats (`BeatLibraryCommands`).
class BeatWindow : public BandedForm {
    Q_OBJECT

public:
    explicit BeatWindow(QWidget* parent);

    /// In: the initially selected beat. Out, if `OkPressed`: the chosen one.
    std::string ChosenBeatName;
    bool OkPressed = false;

    /// Rebuilds the list from the folder and shows it from its first row.
    void LoadBeatFiles();

    /// Shows the list and the selected beat with its name and duration. For that, it loads the sound of the beat.
    void RefreshShowAllPic();

    /// Cancels: the order is not saved, nothing is chosen.
    void reject() override;

private:
    void MakeLabels();
    void MakeGrid();
    void MakeChoice();
    void MakeButtons();
    void MakeMoveMnu();
    [[nodiscard]] BeatWindowNeeds Needs() const;
    void PlaceControls();

    void PressGrid(int index, Qt::MouseButton button, QPoint at);
    void MoveSelected(GridMove move);
    void ClickPlay();
    void ClickOk();
    void ClickAdd() { commands.AddBeat(); }
    void ClickRename() { commands.RenameBeat(); }
    void ClickDelete() { commands.DeleteBeat(); }
    void ClickHelp();
    void LeaveWindow();

    BeatTable table;
    BeatLibraryCommands commands{table, [this] { LoadBeatFiles(); }};
    BeatGrid* ShowAllPic = nullptr;
    QLabel* NoteLbl = nullptr;
    ChosenBeat chosen;
    ImageButton* OkBtn = nullptr;
    ImageButton* CancelBtn = nullptr;
    ImageButton* TestPlayBtn = nullptr;
    ImageButton* AddBtn = nullptr;
    ImageButton* RenameBtn = nullptr;
    ImageButton* DeleteBtn = nullptr;
    ImageButton* HelpBtn = nullptr;
    GridMoveMenu* PopPosiMnu = nullptr;
};

} // namespace sprout
