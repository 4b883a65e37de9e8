// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace sprout {

/// An artwork in a window, called by its name, that ignores the mouse.
class ArtImage : public QWidget {
    Q_OBJECT

public:
    ArtImage(const char* name, QSize size, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace sprout
