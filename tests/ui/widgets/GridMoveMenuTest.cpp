// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridMoveMenu.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sprout {
namespace {

std::string EnabledItems(const GridMoveMenu& menu)
{
    std::string enabled;
    for (const QAction* const item : menu.actions())
        enabled += item->isEnabled() ? 'y' : 'n';
    return enabled;
}

TEST(GridMoveMenu, EnablesTheMovesThatThePictureCanMake)
{
    QWidget window;
    GridMoveMenu menu(&window);
    EXPECT_EQ(menu.objectName(), QStringLiteral("PopPosiMnu"));
    for (const auto& [selected, enabled] :
         {std::pair{1, "nyny"}, {3, "yyyy"}, {4, "ynyy"}, {5, "ynyn"}, {0, "nnnn"}, {-1, "nnnn"}}) {
        menu.OpenFor(selected, 5, 2, QPoint(10, 10));
        EXPECT_TRUE(menu.isVisible());
        EXPECT_EQ(EnabledItems(menu), enabled) << selected;
        menu.close();
    }
}

TEST(GridMoveMenu, ReportsTheMoveThatIsChosen)
{
    QWidget window;
    GridMoveMenu menu(&window);
    std::vector<GridMove> moves;
    QObject::connect(&menu, &GridMoveMenu::MoveWanted, &menu, [&moves](GridMove move) { moves.push_back(move); });
    for (const GridMove move : {GridMove::Right, GridMove::Up})
        menu.Item(move).trigger();
    EXPECT_EQ(moves, (std::vector{GridMove::Right, GridMove::Up}));
    EXPECT_EQ(menu.Item(GridMove::Left).text(), QStringLiteral("Move Left"));
}

} // namespace
} // namespace sprout
