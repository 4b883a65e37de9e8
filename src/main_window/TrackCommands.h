// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <cstdint>

#include "main_window/TrackCanvas.h"

namespace sprout {

/// The commands on music tracks: add, delete, choose a tune; also the blinking of tracks without a tune
/// (`TuneNotFilledTimer`).
class TrackCommands : public QObject {
    Q_OBJECT

public:
    TrackCommands(TrackCanvas& canvas, QObject* parent);

    void TrackAddBtn();
    void TrackDeleteBtn();
    void TrackTuneBtn();

    void EnableTuneNotFilledTimer();
    /// Returns whether the timer was running.
    bool DisableTuneNotFilledTimer();
    /// Nothing blinks while a song is being chosen.
    void SetOpening(bool opening);

private:
    /// Returns whether the tune was changed.
    bool ChooseTuneOf(std::int32_t track);
    void TuneNotFilledTimerTick();

    TrackCanvas& canvas;
    QTimer tuneNotFilledTimer;
    bool songIsOpening = false;
};

} // namespace sprout
