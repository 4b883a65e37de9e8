// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QImage>

#include <functional>

#include "core/Song.h"

namespace sprout {

/// The button that floats over a music track's picture: the tune's own raised picture in a frame.
class TrackTuneBtn : public QAbstractButton {
    Q_OBJECT

public:
    explicit TrackTuneBtn(QWidget* parent);

    /// Sets the tune's picture and its name, which the tool tip shows.
    void SetTune(const Tune& tune);

    /// Called whenever the mouse moves over the button.
    std::function<void()> Hovered;

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QImage raised;
};

} // namespace sprout
