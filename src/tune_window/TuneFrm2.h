// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "ui/forms/BandedForm.h"

namespace sprout {

class StepEditor;
class TuneChooser;

/// The window for choosing a track's tune from all tunes (`TuneChooser`) and for editing it (`StepEditor`). The edited
/// tune is `CurrentTune`.
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

    /// Acts as `CancelBtn`.
    void reject() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeChooser();
    void MakeButtons();
    void MakeEditor();
    void SetTabOrders();

    void OkBtn();
    void CancelBtn();
    void HelpBtn();
    void TestPlayBtn();
    void HearByKey(const QKeyEvent& event);
    void NewTuneBtn();
    void RndTuneBtn();
    void SaveTuneBtn();
    void ChangePicBtn();
    void DeleteTuneBtn();

    TuneChooser* chooser = nullptr;
    StepEditor* editor = nullptr;
};

} // namespace sprout
