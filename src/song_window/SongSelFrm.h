// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

#include <array>
#include <string>
#include <string_view>

#include "song_window/rules/SongChoice.h"
#include "song_window/rules/SongWindowPlan.h"
#include "ui/Windows.h"
#include "ui/forms/BandedForm.h"

namespace sprout {

class SongList;

/// The song window: shows the songs of `SongFolders` (`SongList`) and lets the user choose or type the name of one to
/// open, save or create. It loads and saves no song itself.
class SongSelFrm : public BandedForm {
    Q_OBJECT

public:
    explicit SongSelFrm(QWidget* parent);

    void InitilizeThisWindow(SongSelMode mode);

    /// The initial name in the box.
    void SetSongName(std::string_view name);

    /// After the window has closed: whether it was left with OK, and the song's name.
    bool Ok = false;
    std::string ChosenName;

    /// Closes the window without OK.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void MakeLabels();
    void MakeList();
    void MakeNameBox();
    void MakeButtons();
    [[nodiscard]] SongWindowNeeds Needs() const;
    void PlaceControls();

    void TakeSelectedName();
    void ChangeSongs(void (*command)(SongList&));
    void ShowDeleteBtn();
    void ClickOk();
    void OpenSelected();
    void AcceptTypedName();
    [[nodiscard]] bool MayOverwrite(std::string_view name);
    void Accept(std::string_view name);
    void SaveAsSound(SoundFileKind kind);
    void ClickHelp();

    SongSelMode mode = SongSelMode::Open;
    bool keepsSuppliedSongs = false; ///< as a setting says when the window opens
    QLabel* ModePic = nullptr;
    QLabel* ListTitleLbl = nullptr;
    QLabel* TextTitleLbl = nullptr;
    QLabel* SongNmLbl = nullptr;
    SongList* SngNmLst = nullptr;
    QLineEdit* SongNameTxt = nullptr;
    ImageButton* OkBtn = nullptr;
    ImageButton* CancelBtn = nullptr;
    std::array<ImageButton*, 4> columnButtons{}; ///< in the order of `SongWindowPlan`
    std::array<ImageButton*, 2> soundFileButtons{};
};

} // namespace sprout
