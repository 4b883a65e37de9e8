// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QString>

namespace sprout {

/// Holds all of the program's timers while it lives: what blinks, hops or plays by itself would look different each
/// time. A timer ticks only if it is told to.
class HeldTimers : public QObject {
public:
    HeldTimers();

    /// Lets the running timers with this name below `roots` and below all windows tick once. Returns their number.
    static int Tick(const QString& name, const QList<QObject*>& roots = {});

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace sprout
