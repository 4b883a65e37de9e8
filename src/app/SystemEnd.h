// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGuiApplication>
#include <QSocketNotifier>

#include <memory>

#include "service/posix/EndSignals.h"
#include "songs/SongKeeper.h"

namespace sprout {

/// Keeps an unsaved song if the system ends the program, by a signal or with the session, and ends the event loops on a
/// signal. Like `EndSignals`, only one of these may exist in a program.
class SystemEnd {
public:
    explicit SystemEnd(QGuiApplication& application);

    /// A signal asked the program to end. If no event loop ran then, none has ended.
    [[nodiscard]] bool HasCome() const { return hasCome; }

private:
    void End();
    void KeepSong();

    QObject context; ///< ends the connections
    EndSignals signals;
    SongKeeper keeper;
    std::unique_ptr<QSocketNotifier> notifier;
    bool hasCome = false;
};

} // namespace sprout
