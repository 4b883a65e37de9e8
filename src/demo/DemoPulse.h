// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

namespace sprout {

/// A ring over the active rectangle of a slide. It begins to pulse gently if the rectangle is awaited for 5 seconds.
/// Mouse events pass through it.
class DemoPulse : public QWidget {
    Q_OBJECT

public:
    /// parent: the picture of the slides. The ring is hidden.
    explicit DemoPulse(QWidget* parent);

    /// Hides the ring and begins to wait for the rectangle at `place`, in coordinates of the picture.
    void Await(const QRect& place);
    /// Hides the ring and waits for nothing.
    void Rest();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Tick();

    int ticks = 0; ///< since the ring is shown
    QTimer* pulseTimer;
};

} // namespace sprout
