// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollBar>

#include "ui/rules/PictureGrid.h"

namespace sprout {

/// The scroll bar `VScroll1` of a picture grid. Its value is the first row shown, from 1.
class GridScrollBar : public QScrollBar {
    Q_OBJECT

public:
    explicit GridScrollBar(QWidget* parent);

    /// Takes range and value from a grid; without anything to scroll, it is hidden. Returns the top row that is within
    /// the range. `Scrolled` does not report this.
    int Fit(const PictureGrid& grid);

Q_SIGNALS:
    void Scrolled(int topRow);

private:
    bool isFitting = false;
};

} // namespace sprout
