// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>

#include "main_window/TrackCanvas.h"
#include "ui/Windows.h"

namespace sprout {

/// The commands on music tracks: add, delete, choose a tune; also the blinking of tracks without a tune
/// (`TuneNotFilledTimer`).
class TrackCommands : public QObject {
    Q_OBJECT

public:
    /// Lets the user choose a tune; see `Windows::OpenTuneWindow`.
    using TuneChooser = std::function<bool(Tune& tune, bool& newFlag)>;

    TrackCommands(
        TrackCanvas& canvas, QObject* parent,
        TuneChooser chooseTune = [](Tune& tune, bool& newFlag) { return TheWindows().OpenTuneWindow(tune, newFlag); });

    void TrackAddBtn();
    void TrackDeleteBtn();
    void TrackTuneBtn();

    void EnableTuneNotFilledTimer();
    /// Nothing blinks while a song is being chosen.
    void SetOpening(bool opening);

private:
    /// Returns whether the tune was changed.
    bool ChooseTuneOf(std::int32_t track);
    void TuneNotFilledTimerTick();

    TrackCanvas& canvas;
    TuneChooser chooseTune;
    QTimer tuneNotFilledTimer;
    bool songIsOpening = false;
};

} // namespace sprout
