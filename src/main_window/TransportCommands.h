// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <cstdint>

#include "core/Song.h"
#include "main_window/TrackCanvas.h"
#include "service/PlayDisplay.h"

namespace sprout {

/// Hears the song, a track or a tune, and follows what plays: the transport commands of the main window with their
/// timers (`PlayPosTimer`, `TrackTitlePlayTimer`). It is what the player shows its plays on.
class TransportCommands : public QObject, public PlayDisplay {
    Q_OBJECT

public:
    explicit TransportCommands(QObject* parent);

    /// The canvas whose markers and rows it follows, and the label of the player's state. Called once, before all else.
    void SetWindow(TrackCanvas& canvas, QLabel& soundStatusLbl);

    void PlayAllBtn();
    void PlayStopBtn();
    void TrackPlayBtn();
    /// `PlayAllBtn`, or `PlayStopBtn` while something plays.
    void PlayOrStop();
    void PlaySongFrom(std::int32_t cell);
    void PlayTrackFrom(std::int32_t track, std::int32_t cell);
    void EnableTrackTitlePlayTimer();

    [[nodiscard]] std::int32_t MainWindowHandle() const override;
    void ShowSoundStatus(std::string_view text) override;
    void EnablePlayPosTimer() override;
    void UpdateThisTune() override;

private:
    /// Plays a wave of the song or of a track that starts at a cell.
    void Play(const WaveData& wave, std::int32_t track, std::int32_t startCell);
    void PlayFromCell(const WaveData& wave, std::int32_t origin, std::int32_t track, std::int32_t cell);
    void TellNoSound();

    void PlayPosTimerTick();
    void MovePlayIndicator();
    void PlayIndicatorOff();

    void TrackTitlePlayTimerTick();
    /// What sounds now; returns the milliseconds until the next look.
    [[nodiscard]] int PlayHovered();

    QPointer<TrackCanvas> canvas;
    QPointer<QLabel> soundStatusLbl;
    QTimer playPosTimer;
    QTimer trackTitlePlayTimer;
    bool noSoundTold = false;
    bool titlePlayBusy = false; ///< a message or a long render inside a tick lets others come
};

} // namespace sprout
