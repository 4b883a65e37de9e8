// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridMoveMenu.h"

#include "ui/words/QtText.h"

namespace sprout {

GridMoveMenu::GridMoveMenu(QWidget* parent) : QMenu(parent)
{
    setObjectName(QStringLiteral("PopPosiMnu"));
    for (std::size_t i = 0; i < items.size(); ++i) {
        items[i] = addAction(QtText(kGridMoveCaptions[i]));
        connect(items[i], &QAction::triggered, this, [this, i] { Q_EMIT MoveWanted(static_cast<GridMove>(i)); });
    }
}

void GridMoveMenu::OpenFor(std::int32_t selected, std::int32_t count, std::int32_t columns, QPoint at)
{
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i]->setEnabled(GridMoveTarget(static_cast<GridMove>(i), selected, count, columns) > 0);
    popup(at);
}

} // namespace sprout
