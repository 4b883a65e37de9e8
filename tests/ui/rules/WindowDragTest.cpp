// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/rules/WindowDrag.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

TEST(WindowDragAt, MovesTheWindowAtOnceWhereItCanPlaceItself)
{
    EXPECT_EQ(WindowDragAt(false, 0, 10), WindowDrag::MoveItself);
    EXPECT_EQ(WindowDragAt(false, 40, 10), WindowDrag::MoveItself);
}

TEST(WindowDragAt, AsksTheDesktopOnceThePressIsADrag)
{
    EXPECT_EQ(WindowDragAt(true, 9, 10), WindowDrag::Wait);
    EXPECT_EQ(WindowDragAt(true, 10, 10), WindowDrag::AskDesktop);
}

} // namespace
} // namespace sprout
