// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

#include "main_window/TrackCanvas.h"

namespace sprout {

/// Plays what the pointer rests on in the title strip, a tune or a recording, and the tune of a stroke
/// (`TrackTitlePlayTimer`). It is silent while the song or a track plays.
class TrackTitlePlay : public QObject {
    Q_OBJECT

public:
    explicit TrackTitlePlay(QObject* parent);

    /// Looks at this canvas from now on.
    void Start(TrackCanvas& trackCanvas);
    /// Goes on if a failure has stopped it.
    void EnableTrackTitlePlayTimer();
    /// Returns whether the timer was running.
    bool DisableTrackTitlePlayTimer();

private:
    void Tick();
    /// Plays what is hovered or brushed; returns the milliseconds until the next check.
    [[nodiscard]] int PlayHovered();

    QPointer<TrackCanvas> canvas;
    QTimer timer;
    bool isBusy = false; ///< a message or a long render inside a tick lets other ticks in
};

} // namespace sprout
