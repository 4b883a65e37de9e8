// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridScrollBar.h"

#include <QScopedValueRollback>

#include <algorithm>

#include "ui/words/Texts.h"

namespace sprout {

GridScrollBar::GridScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent)
{
    setObjectName(QStringLiteral("VScroll1"));
    SetSpokenName(*this, Words::Text("Scroll the pictures"));
    setMinimum(1);
    connect(this, &QScrollBar::valueChanged, this, [this](int row) {
        if (!isFitting)
            Q_EMIT Scrolled(row);
    });
}

int GridScrollBar::Fit(const PictureGrid& grid)
{
    const QScopedValueRollback guard(isFitting, true);
    const GridScroll range = GridScrollRange(grid);
    const int topRow = std::clamp(grid.topRow, 1, range.maximum);
    setMaximum(range.maximum);
    setPageStep(std::max(grid.heightPx / kGridCell, 1));
    setValue(topRow);
    setEnabled(range.enabled);
    setVisible(range.enabled);
    return topRow;
}

} // namespace sprout
