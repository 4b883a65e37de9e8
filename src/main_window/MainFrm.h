// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <array>
#include <memory>

#include "main_window/AudioTrackCommands.h"
#include "main_window/SongCommands.h"
#include "main_window/rules/EdgeDrag.h"
#include "main_window/rules/Stroke.h"
#include "ui/ButtonScheme.h"
#include "ui/Hints.h"
#include "ui/ProcessPic.h"

namespace sprout {

class ControlBar;
class EdgeGrip;
class StatusBar;
class TitleBand;
class TrackCanvas;
class TrackCommands;
class TransportCommands;

/// The main window: title band, control bar, track canvas and status line, in a frame of its own. It takes its position
/// from the settings file, shows the shared song, and turns clicks and keys into commands.
class MainFrm : public QWidget {
    Q_OBJECT

public:
    /// transport: the display of the player; it outlives the window.
    explicit MainFrm(TransportCommands& transport);

    void DrawTracksAll();
    void UpdateTempoSliderValue();
    /// Shows title and author, also in the caption.
    void UpdateSongTitle();

    /// count: number of sound devices found.
    void ShowSoundDevices(int count);

    /// Stores the window's position and releases the player, as closing does, but asks nothing: for when the system
    /// ends the program.
    void Unload();

    /// The busy sign, `ProcessPic`.
    [[nodiscard]] ProcessPic& WorkingSign() { return *processPic; }
    void EnableTuneNotFilledTimer();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The window is closed, its position is stored and the player is released: the program ends.
    void Unloaded();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Row;
    static const std::array<Row, 17>& Rows();

    void MakeButtons();
    void DrawPicturesAhead();
    void MakeTitleBand();
    void MakeControlBar();
    void MakeCanvas();
    void MakeStatusBar();
    void MakeCorners();
    void MakeGrips();
    void MakeShortcuts();
    void WatchBackground();
    void SetTabOrder();

    void TakePlaceFromSettings();
    void WritePlaceToSettings() const;
    void ShowWindowButtons();
    void ChooseTool(Tool tool);
    void ShowNewSong();
    void AboutBtn();

    TransportCommands& transportCommands;
    ButtonScheme buttons;
    HintWatcher watcher;
    SongCommands songCommands;
    TitleBand* titleBand = nullptr;
    ControlBar* controlBar = nullptr;
    TrackCanvas* canvas = nullptr;
    TrackCommands* trackCommands = nullptr;
    std::unique_ptr<AudioTrackCommands> audioTrackCommands;
    StatusBar* statusBar = nullptr;
    std::array<QWidget*, 2> corners{};
    std::array<EdgeGrip*, kWindowGrips.size()> grips{};
    ProcessPic* processPic;
};

} // namespace sprout
