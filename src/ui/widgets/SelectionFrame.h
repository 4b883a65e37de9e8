// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

namespace sprout {

/// The frame around the chosen picture of a grid (`BlinkSelectImg`), alternating between two artworks.
class SelectionFrame : public QWidget {
    Q_OBJECT

public:
    /// parent: the grid. The frame is out of sight.
    explicit SelectionFrame(QWidget* parent);

    /// Blinks around a picture with this top left; begins with the first artwork.
    void Surround(QPoint picture);
    /// Goes out of sight and stands still.
    void Leave();

    /// The artwork shown, 0 or 1 of `BlinkSelectBakImg`.
    [[nodiscard]] int Phase() const { return phase; }
    [[nodiscard]] QTimer& BlinkSelectedTimer() { return *blinkSelectedTimer; }

public Q_SLOTS:
    /// A tick of `BlinkSelectedTimer`.
    void Blink();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void ShowPhase(int newPhase);

    int phase = 0;
    int ticks = 0; ///< since it surrounds the picture
    QTimer* blinkSelectedTimer;
};

} // namespace sprout
