// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>

#include "sound/AheadWork.h"

namespace sprout {

/// Says when work ahead of a play begins: when the program has nothing else to do and the song is not the one that was
/// looked at last. It waits while a mouse button is held, since a stroke is not over, and while a window or question is
/// open above the main window. The mix is allowed once nothing has changed for half a second.
///
/// Nothing is polled: the event loop tells when it is about to sleep.
class AheadOfPlay : public QObject {
    Q_OBJECT

public:
    /// makeWork: called at once; the function that it gets may be called by any thread while the work exists, and lets
    /// this object take results soon.
    explicit AheadOfPlay(const std::function<std::unique_ptr<AheadWork>(std::function<void()> tellResult)>& makeWork);

private:
    void TellResult();
    void TakeResults();
    void LookAtSong();
    void AllowMix();

    std::atomic<bool> isTold = false;
    std::uint64_t seenChanges;
    std::uint64_t interruptedChanges;
    QTimer mixTimer;
    std::unique_ptr<AheadWork> work; // ends first: its threads call back
};

} // namespace sprout
