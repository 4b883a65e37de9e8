// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AheadOfPlay.h"

#include <QAbstractEventDispatcher>
#include <QApplication>

#include <chrono>
#include <utility>

#include "base/Guarded.h"
#include "core/SongChanges.h"

namespace sprout {

namespace {

constexpr std::chrono::milliseconds kRestBeforeMix{500};

/// The user is in the middle of something.
bool IsBusy()
{
    return QGuiApplication::mouseButtons() != Qt::NoButton || QApplication::activeModalWidget();
}

/// A failure here, such as a lack of memory, leaves everything to the play.
template <class Operation>
void Try(Operation operation)
{
    GuardedQuietly("Rendering ahead", operation);
}

} // namespace

AheadOfPlay::AheadOfPlay(const std::function<std::unique_ptr<AheadWork>(std::function<void()> tellResult)>& makeWork)
    : seenChanges(SongChanges::Count() - 1), // the song that is there now has not been looked at either
      interruptedChanges(seenChanges),
      mixTimer(this),
      work(makeWork([this] { TellResult(); }))
{
    mixTimer.setSingleShot(true);
    mixTimer.setInterval(kRestBeforeMix);
    connect(&mixTimer, &QTimer::timeout, this, &AheadOfPlay::AllowMix);
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &AheadOfPlay::LookAtSong);
}

void AheadOfPlay::TellResult()
{
    // One event stands for all results that come before it is handled.
    if (!isTold.exchange(true))
        QMetaObject::invokeMethod(this, &AheadOfPlay::TakeResults, Qt::QueuedConnection);
}

void AheadOfPlay::TakeResults()
{
    isTold = false;
    Try([this] { work->TakeResults(); });
}

void AheadOfPlay::LookAtSong()
{
    const bool isChanged = SongChanges::Count() != seenChanges;
    if (!isChanged && !work->WasInterrupted())
        return;
    Try([this, isChanged] {
        if (IsBusy()) {
            mixTimer.stop();
            if (isChanged && std::exchange(interruptedChanges, SongChanges::Count()) != SongChanges::Count())
                work->Interrupt();
            return;
        }
        seenChanges = SongChanges::Count();
        work->Begin();
        mixTimer.start();
    });
}

void AheadOfPlay::AllowMix()
{
    // If something has changed in this moment, the look at the song that follows begins anew.
    if (SongChanges::Count() == seenChanges)
        Try([this] { work->AllowMix(); });
}

} // namespace sprout
