// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>
#include <QListWidget>

#include <string>
#include <string_view>
#include <vector>

#include "song_window/rules/SongChoice.h"
#include "songs/SongFiles.h"
#include "ui/BandedForm.h"
#include "ui/Windows.h"

namespace sprout {

/// The song window: lists the songs of `UserSongs`; opens, saves or names one. It loads and saves nothing itself.
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
    void PlaceControls();
    void PlaceNameBox(int top);
    void PlaceRow(int top);
    void PlaceColumn(int top, int bottom);

    void LoadSongNames();
    [[nodiscard]] int SelectedRow() const;
    void SelectRow(int row);
    void TakeSelectedName();
    [[nodiscard]] bool IsSongSelected(std::string_view message);

    void ClickOk();
    void OpenSelected();
    void AcceptTypedName();
    [[nodiscard]] bool MayOverwrite(std::string_view name);
    void Accept(std::string_view name);
    void CopySelected();
    void DeleteSelected();
    void RenameSelected();
    void SaveAsSound(SoundFileKind kind);
    void ClickHelp();
    /// Runs a command on files; an error is shown after `text`.
    void Try(std::string_view text, void (SongSelFrm::*command)());

    SongSelMode mode = SongSelMode::Open;
    std::vector<SongFile> songs; ///< in list order
    QLabel* ModePic = nullptr;
    QLabel* ListTitleLbl = nullptr;
    QLabel* TextTitleLbl = nullptr;
    QLabel* SongNmLbl = nullptr;
    QListWidget* SngNmLst = nullptr;
    QLineEdit* SongNameTxt = nullptr;
    ImageButton* OkBtn = nullptr;
    ImageButton* CancelBtn = nullptr;
    std::vector<ImageButton*> columnButtons;
    std::vector<ImageButton*> soundFileButtons;
};

} // namespace sprout
