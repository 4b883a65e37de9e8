// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

namespace sprout {

class TrackCanvas;

/// The commands on music tracks: add, delete, choose a tune; and the blinking of tracks without one
/// (`TuneNotFilledTimer`).
class TrackCommands : public QObject {
    Q_OBJECT

public:
    TrackCommands(TrackCanvas& canvas, QObject* parent);

    void TrackAddBtn();
    void TrackDeleteBtn();
    void TrackTuneBtn();

    void EnableTuneNotFilledTimer();
    /// While a song is being chosen, nothing blinks.
    void SetOpening(bool opening);
};

} // namespace sprout
