// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <cstdint>

#include "base/Words.h"
#include "core/Song.h"
#include "main_window/TrackCanvas.h"
#include "main_window/TrackTitlePlay.h"
#include "service/PlayDisplay.h"

namespace sprout {

/// The main window's transport commands: they play the song, a track or a tune, and follow what plays with a timer
/// (`PlayPosTimer`). The player shows its state here.
class TransportCommands : public QObject, public PlayDisplay {
    Q_OBJECT

public:
    explicit TransportCommands(QObject* parent);

    /// Sets the canvas whose markers and rows it follows, and the player's state label. Call it once, before anything
    /// else.
    void SetWindow(TrackCanvas& canvas, QLabel& soundStatusLbl);

    void PlayAllBtn();
    void PlayStopBtn();
    void TrackPlayBtn();
    /// Acts as `PlayAllBtn`, or as `PlayStopBtn` while something plays.
    void PlayOrStop();
    void PlaySongFrom(std::int32_t cell);
    void PlayTrackFrom(std::int32_t track, std::int32_t cell);
    void EnableTrackTitlePlayTimer() { titlePlay.EnableTrackTitlePlayTimer(); }

    /// Which of its timers run.
    struct Timers {
        bool PlayPos = false;
        bool TrackTitlePlay = false;
    };
    /// Switches the timers off before a demo; returns which ones were running.
    [[nodiscard]] Timers DisableTimers();
    void EnableTimers(const Timers& wereRunning);
    /// After a demo: stops the player and the marker. The timers stay off; hover play begins again over a tune button.
    void EndDemo();

    /// Closes the sound driver and releases the player, at the end of the program.
    static void ShutSound();

    [[nodiscard]] std::int32_t MainWindowHandle() const override;
    void ShowSoundStatus(const Words& text) override;
    void EnablePlayPosTimer() override;
    void UpdateThisTune() override;

private:
    /// Plays a wave of the song or of a track, starting at a cell.
    void Play(const WaveData& wave, std::int32_t track, std::int32_t startCell);
    void PlayFromCell(const WaveData& wave, std::int32_t origin, std::int32_t track, std::int32_t cell);
    void TellNoSound();

    void PlayPosTimerTick();
    void MovePlayIndicator();
    void PlayIndicatorOff();

    QPointer<TrackCanvas> canvas;
    QPointer<QLabel> soundStatusLbl;
    QTimer playPosTimer;
    TrackTitlePlay titlePlay;
    bool noSoundTold = false;
};

} // namespace sprout
