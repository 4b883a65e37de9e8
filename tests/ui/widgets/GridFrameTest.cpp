// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/widgets/GridFrame.h"

#include <gtest/gtest.h>

#include "ui/look/Palette.h"

namespace sprout {
namespace {

TEST(GridPlacesAt, TheFrameSurroundsTheGridAndItsScrollBarWithTheSameMargin)
{
    const GridPlaces places = GridPlacesAt({10, 20}, 12, 5);
    EXPECT_EQ(places.frame, QRect(10, 20, 12 * 40 + 2 + 33, 5 * 40 + 2 + 10));
    EXPECT_EQ(places.grid, QRect(15, 25, 12 * 40 + 2, 5 * 40 + 2));
    EXPECT_EQ(places.scroll, QRect(15 + 12 * 40 + 2 + 5, 25, 18, 5 * 40 + 2));
    EXPECT_EQ(places.frame.right() - places.scroll.right(), 5);
}

TEST(GridFrame, ItsLineShowsTheFocus)
{
    QWidget window;
    GridFrame frame(&window);
    frame.resize(60, 60);
    const auto line = [&frame] { return frame.grab().toImage().pixelColor(30, 1); };
    EXPECT_EQ(line(), kStone);
    frame.ShowFocus(true);
    EXPECT_EQ(line(), kLink);
    frame.ShowFocus(false);
    EXPECT_EQ(line(), kStone);
}

} // namespace
} // namespace sprout
