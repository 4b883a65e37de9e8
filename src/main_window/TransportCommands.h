// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <cstdint>
#include <functional>

#include "service/PlayDisplay.h"

class QLabel;

namespace sprout {

class TrackCanvas;

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
};

} // namespace sprout
