// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <filesystem>
#include <memory>

#include "main_window/AudioTrackCommands.h"
#include "main_window/MainButtons.h"
#include "main_window/SongCommands.h"
#include "main_window/rules/Stroke.h"
#include "ui/widgets/ButtonScheme.h"
#include "ui/widgets/Hints.h"
#include "ui/widgets/ProcessPic.h"

namespace sprout {

class ControlBar;
class GroundWatch;
class StatusBar;
class TitleBand;
class TrackCanvas;
class TrackCommands;
class TransportCommands;
class WelcomeCard;
class WindowFrame;

/// The main window: title band, control bar, track canvas and status line, in a frame of its own. It takes its position
/// from the settings file, shows the shared song, and turns clicks and keys into commands.
class MainFrm : public QWidget {
    Q_OBJECT

public:
    /// transport: the display of the player; it outlives the window.
    explicit MainFrm(TransportCommands& transport);
    MainFrm(const MainFrm&) = delete;
    MainFrm& operator=(const MainFrm&) = delete;
    ~MainFrm() override;

    void DrawTracksAll();
    void UpdateTempoSliderValue();
    /// Shows title and author, also in the caption.
    void UpdateSongTitle();

    /// Shows the card that welcomes the user and tells the same on the status line. Once it is put away, the tracks
    /// have its room again.
    void ShowWelcome();

    /// Opens a song from where it lies, as if it had been chosen.
    void OpenSong(const std::filesystem::path& file);

    /// count: number of sound devices found.
    void ShowSoundDevices(int count);

    /// Stores the window's position and releases the player, as closing does, but asks nothing: for when the system
    /// ends the program.
    void Unload();

    /// The busy sign, `ProcessPic`.
    [[nodiscard]] ProcessPic& WorkingSign() { return *processPic; }
    void EnableTuneNotFilledTimer();

Q_SIGNALS:
    /// The window is closed, its position is stored and the player is released: the program ends.
    void Unloaded();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    [[nodiscard]] MainButtonClicks Clicks();
    void MakeTitleBand();
    void MakeControlBar();
    void MakeCanvas();
    void WatchBackground();

    void ShowWindowButtons();
    void ChooseTool(Tool tool);
    void ShowNewSong();
    void PlaceParts();
    void PutWelcomeAway();

    TransportCommands& transportCommands;
    ButtonScheme scheme;
    MainButtons buttons;
    HintWatcher watcher;
    SongCommands songCommands;
    GroundWatch* groundWatch;
    TitleBand* titleBand = nullptr;
    ControlBar* controlBar = nullptr;
    TrackCanvas* canvas = nullptr;
    TrackCommands* trackCommands = nullptr;
    std::unique_ptr<AudioTrackCommands> audioTrackCommands;
    StatusBar* statusBar = nullptr;
    WelcomeCard* welcome = nullptr; ///< until it is put away
    std::unique_ptr<WindowFrame> frame;
    ProcessPic* processPic;
};

} // namespace sprout
