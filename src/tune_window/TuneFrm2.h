// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "core/Song.h"
#include "tunes/TuneNames.h"
#include "tunes/TuneTable.h"
#include "ui/BandedForm.h"
#include "ui/rules/PictureGrid.h"

namespace sprout {

class PictureGridPic;
class StepEditor;
class TunePicture;

/// The window for choosing a track's tune from the grid of all tunes and for editing it. The edited tune is
/// `CurrentTune`.
class TuneFrm2 : public BandedForm {
    Q_OBJECT

public:
    explicit TuneFrm2(QWidget* parent);

    std::string OriginalTuneName; ///< of the tune when the window opened
    std::string ChosenTuneName;   ///< to select when the window opens
    bool OkPressed = false;       ///< the user left the window with OK
    bool TuneChanged = false;     ///< the track must take `CurrentTune`
    bool NewTuneMode = false;     ///< nothing is chosen at first; read once by `RefreshShowAllPic`

    /// Fits the window to its screen and shows it modally, scrolled to its first tunes.
    void Open();

    /// Sizes the window for this much screen space.
    void FitTo(QSize room);

    /// Selects the tune named `ChosenTuneName` and draws the grid. If no tune of the grid has that name, nothing is
    /// selected; if the name is empty, the first tune is chosen and plays.
    void FindChosenTune();

    /// Draws the grid. If nothing was chosen yet, the first tune is chosen and plays.
    void RefreshShowAllPic();

    /// Shows `CurrentTune` in the labels and in the editor.
    void UpdateThisTune();

    /// Copies the tunes of `TuneTable` into the grid.
    void TakeTuneTable();

    /// Acts as `CancelBtn`.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Command = void (TuneFrm2::*)();
    static constexpr std::int32_t kNothingChosen = -1;
    static constexpr int kDeleteItem = 4; ///< in `MoveMnu`, after the moves
    struct CommandRow;

    void MakeGrid();
    void MakeChosenTune();
    void MakeButtons();
    void MakeEditor();
    void MakeMoveMnu();
    void SetTabOrders();

    void ChooseFirstTune();
    void ChooseTune(std::int32_t index, Qt::MouseButton button, QPoint at);
    void PlaySelectedTune();
    void ShowNoTunes();
    void ShowSelectedTune();
    void ShowEditorsTune();
    void ShowNames(const std::string& name, const std::string& author);
    void ShowTune(const std::string& name, const std::string& author, const Picture& picture);
    [[nodiscard]] bool HasSelectedTune() const { return IsInTuneTable(SelectedTune); }
    [[nodiscard]] bool ShowsEditorsTune() const { return showsEditorsTune || SelectedTune == kNothingChosen; }

    void OpenMoveMnu(QPoint at);
    void MoveTune(GridMove move);
    void DeleteTune();
    void ReadTunesAgain();

    void OkBtn();
    void CancelBtn();
    void HelpBtn();
    void TestPlayBtn();
    void HearByKey(const QKeyEvent& event);
    void NewTuneBtn();
    void RndTuneBtn();
    void SaveTuneBtn();
    void ChangePicBtn();
    void TunePicClick();

    [[nodiscard]] std::optional<TuneNames> AskNames();
    [[nodiscard]] bool MaySaveUnder(const TuneNames& names) const;
    void SaveUnder(const TuneNames& names);
    void TakePicture(const std::filesystem::path& file);

    Tune ChosenTune;               ///< copy of the chosen entry of `TuneTable`, complete once played
    std::int32_t SelectedTune = 0; ///< index in `TuneTable`; below 1 nothing is chosen
    /// From opening until a picture of the grid is chosen: the editor's tune is shown and played.
    bool showsEditorsTune = false;

    PictureGridPic* ShowAllPic = nullptr;
    TunePicture* TunePic = nullptr;
    QLabel* TuneNameLbl = nullptr;
    QLabel* CreatedByLbl = nullptr;
    StepEditor* editor = nullptr;
    QMenu* PopPosiMnu = nullptr;
    std::array<QAction*, 5> MoveMnu{};
};

} // namespace sprout
