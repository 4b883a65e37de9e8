// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

class QWidget;

namespace sprout {

/// Lets files be dropped on a window, unless a modal window is open.
class SoundDrop : public QObject {
    Q_OBJECT

public:
    /// The window owns this object.
    explicit SoundDrop(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Something was dropped. Comes after the event: the drag source waits for its end, and a message would block it.
    void Dropped(const QList<QUrl>& places);
};

} // namespace sprout
