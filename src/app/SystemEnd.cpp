// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SystemEnd.h"

#include <cstdlib>

#include "base/Guarded.h"

namespace sprout {

SystemEnd::SystemEnd(QGuiApplication& application)
{
    if (signals.Number() >= 0) {
        notifier = std::make_unique<QSocketNotifier>(signals.Number(), QSocketNotifier::Read);
        QObject::connect(notifier.get(), &QSocketNotifier::activated, &context, [this] { End(); });
    }
    // The session manager waits for the answer. The session, and the program with it, may continue.
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &context, [this] { KeepSong(); }, Qt::DirectConnection);
}

void SystemEnd::End()
{
    notifier->setEnabled(false);
    hasCome = true;
    KeepSong();
    QCoreApplication::exit(EXIT_SUCCESS);
}

void SystemEnd::KeepSong()
{
    // Nobody is left to be told.
    GuardedQuietly("Keeping the unsaved song", [this] { keeper.KeepUnsavedSong(); });
}

} // namespace sprout
