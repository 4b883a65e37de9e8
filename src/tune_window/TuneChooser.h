// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

#include <cstdint>
#include <string_view>

#include "tune_window/ChosenTuneView.h"
#include "tune_window/TuneChoice.h"
#include "tune_window/rules/TuneWindowPlan.h"
#include "ui/widgets/GridMoveMenu.h"
#include "ui/widgets/Hints.h"

namespace sprout {

class TuneGrid;

/// The upper half of the tune window, where a tune is chosen: the grid of all tunes with its menu, and the picture and
/// the names of the chosen tune. Its widgets are children of the window.
class TuneChooser : public QObject {
    Q_OBJECT

public:
    explicit TuneChooser(QWidget* window);

    [[nodiscard]] TuneGrid& ShowAllPic() const { return *grid; }
    [[nodiscard]] const ChosenTuneView& Shown() const { return shown; }

    void PlaceAt(const TuneWindowPlan& plan);

    /// Shows the table from its first row, with the tune of the editor as the chosen one.
    void BeginWithEditorsTune();

    /// Selects the tune of that name; nothing, if no tune of the table has it. An empty name leaves the choice open.
    /// Call `RefreshShowAllPic` to show it.
    void FindTune(std::string_view name) { choice.Find(name); }
    void BringIntoView();

    /// Draws the grid and shows the chosen tune. If the choice is open, the first tune is chosen and plays.
    void RefreshShowAllPic();
    void ShowEditorsTune();

    /// From now on no tune of the grid is chosen.
    void ChooseNothing() { choice.ChooseNothing(); }
    /// The window is left: the next one begins without a choice.
    void Leave();

    /// Deletes the chosen tune if the user says yes.
    void DeleteTune();

    /// Reads the table anew after `CurrentTune` was saved, and chooses its last tune.
    void ShowSavedTune();

Q_SIGNALS:
    void EditorsTunePlayWanted();
    void TuneAccepted(); ///< by a double click
    /// Whether the window shall offer to delete the tune that is chosen now.
    void DeletionOffered(bool offered);

private:
    void MakeGrid(QWidget* window);
    void MakeChosenTune(QWidget* window);
    void MakeMoveMnu(QWidget* window);

    void ChooseTune(std::int32_t index, Qt::MouseButton button, QPoint at);
    void ClickTunePic();
    void PlayChosenTune();
    void KeepSound();
    /// The chosen tune of the table; null if there is none.
    [[nodiscard]] const Tune* ChosenTune() const;
    void ShowChosenTune();
    void MoveTune(GridMove move);
    void ReadTunesAgain();

    TuneChoice choice;
    TuneGrid* grid = nullptr;
    ChosenTuneView shown;
    GridMoveMenu* PopPosiMnu = nullptr;
    HintWatcher hints{this};
};

} // namespace sprout
