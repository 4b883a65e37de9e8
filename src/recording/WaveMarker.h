// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

namespace sprout {

/// A shape of one colour that lies over the picture of a wave and moves without redrawing the wave. Mouse events pass
/// through it.
class WaveMarker : public QWidget {
    Q_OBJECT

public:
    WaveMarker(const char* name, const QColor& fill, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour;
};

} // namespace sprout
