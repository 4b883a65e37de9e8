// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>

#include <array>
#include <cstdint>

#include "ui/rules/PictureGrid.h"

namespace sprout {

/// The menu that moves the chosen picture of a grid, `PopPosiMnu`. An item is enabled if the picture can move that way.
class GridMoveMenu : public QMenu {
    Q_OBJECT

public:
    explicit GridMoveMenu(QWidget* parent);

    /// Opens at a point of the screen for picture `selected` of `count`.
    void OpenFor(std::int32_t selected, std::int32_t count, std::int32_t columns, QPoint at);

    [[nodiscard]] QAction& Item(GridMove move) const { return *items[static_cast<std::size_t>(move)]; }

Q_SIGNALS:
    void MoveWanted(GridMove move);

private:
    std::array<QAction*, kGridMoveCaptions.size()> items{};
};

} // namespace sprout
