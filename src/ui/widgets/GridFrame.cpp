// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridFrame.h"

#include "ui/look/Palette.h"
#include "ui/rules/PictureGrid.h"

namespace sprout {

namespace {

constexpr int kGridEdge = 2;   // makes the margins of the last column and row as wide as those of the first
constexpr int kGridAround = 5; // from the grid to the outer edge of its frame
constexpr int kGridScrollWidth = 18;

} // namespace

GridPlaces GridPlacesAt(QPoint frameAt, int columns, int rows)
{
    const QRect grid(frameAt + QPoint(kGridAround, kGridAround),
                     QSize(columns, rows) * kGridCell + QSize(kGridEdge, kGridEdge));
    const QRect scroll(grid.right() + 1 + kGridAround, grid.y(), kGridScrollWidth, grid.height());
    return {QRect(frameAt, grid.size() + QSize(kGridScrollWidth + 3 * kGridAround, 2 * kGridAround)), grid, scroll};
}

GridFrame::GridFrame(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("ShowAllFrame"));
    ShowFocus(false);
}

void GridFrame::ShowFocus(bool focused)
{
    setStyleSheet(QStringLiteral("#ShowAllFrame { background: white; border: 2px solid %1; border-radius: 8px }")
                      .arg((focused ? kLink : kStone).name()));
}

} // namespace sprout
