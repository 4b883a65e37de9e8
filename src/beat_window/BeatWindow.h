// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

#include <array>
#include <string>
#include <string_view>

#include "beat_window/ChoosenPicture.h"
#include "beat_window/NameLabel.h"
#include "beats/BeatTable.h"
#include "ui/BandedForm.h"
#include "ui/PictureGridPic.h"
#include "ui/rules/PictureGrid.h"

namespace sprout {

/// The beat window: all beats of `UserBeats` as a grid of pictures. A click chooses a beat and plays it; buttons add,
/// rename and delete beats.
class BeatWindow : public BandedForm {
    Q_OBJECT

public:
    explicit BeatWindow(QWidget* parent);

    /// In: the initially selected beat. Out, if `OkPressed`: the chosen one.
    std::string ChosenBeatName;
    bool OkPressed = false;

    /// A beat was added since the program started: the messages that explain it are no longer shown.
    static inline bool AddHelpShown = false;

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
    void PlaceControls(int rows);
    [[nodiscard]] int FittingRows() const;
    void PlaceChoice(const QRect& column);
    void PlaceColumn(const QRect& column);

    void FillGrid();
    void ShowNoBeats();
    void ShowChoice();
    void ShowNoChoice();

    void PressGrid(int index, Qt::MouseButton button, QPoint at);
    void OpenMoveMnu(QPoint at);
    [[nodiscard]] std::int32_t MoveTarget(GridMove move) const;
    void MoveSelected(GridMove move);
    void PlaySelectedBeat();
    void ClickPlay();
    void ClickOk();
    void ClickAdd();
    void ClickRename();
    void ClickDelete();
    void ClickHelp();
    void LeaveWindow();

    void AddBeat();
    void RenameBeat();
    void DeleteBeat();
    void Try(std::string_view text, void (BeatWindow::*command)());

    BeatTable table;
    PictureGridPic* ShowAllPic = nullptr;
    ChoosenPicture* ChoosenPic = nullptr;
    QLabel* NoteLbl = nullptr;
    NameLabel* NmLbl = nullptr;
    QLabel* DurLbl = nullptr;
    ImageButton* OkBtn = nullptr;
    ImageButton* CancelBtn = nullptr;
    ImageButton* TestPlayBtn = nullptr;
    ImageButton* AddBtn = nullptr;
    ImageButton* RenameBtn = nullptr;
    ImageButton* DeleteBtn = nullptr;
    ImageButton* HelpBtn = nullptr;
    QMenu* PopPosiMnu = nullptr;
    std::array<QAction*, kGridMoveCaptions.size()> MoveMnu{};
};

} // namespace sprout
