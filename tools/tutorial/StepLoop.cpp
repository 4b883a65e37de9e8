// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/StepLoop.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>

#include <exception>
#include <utility>

#include "base/Errors.h"

namespace sprout {

namespace {

constexpr int kSettleRounds = 3;

} // namespace

void StepLoop::Run()
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, &StepLoop::QueueStep);
    QApplication::exec();
    if (!failure.empty())
        throw RunTimeError(Words::AsIs(failure));
}

void StepLoop::Settle()
{
    for (int i = 0; i < kSettleRounds; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// A loop that only looks for events, such as that of long work, is never about to block: no step runs in it.
void StepLoop::QueueStep()
{
    if (!std::exchange(isQueued, true))
        QMetaObject::invokeMethod(
            this, [this] { DoStep(); }, Qt::QueuedConnection);
}

void StepLoop::DoStep()
{
    isQueued = false;
    try {
        Settle();
        if (failure.empty() && step())
            return;
    } catch (const std::exception& error) {
        failure = error.what();
    }
    QCoreApplication::exit();
}

} // namespace sprout
