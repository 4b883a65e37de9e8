// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/EdgeDrag.h"

#include <gtest/gtest.h>

namespace sprout {
namespace {

constexpr Box kStart{100, 50, 800, 600};
constexpr WindowEdges kLeft{true, false, false, false};
constexpr WindowEdges kTop{false, true, false, false};
constexpr WindowEdges kRight{false, false, true, false};
constexpr WindowEdges kBottom{false, false, false, true};
constexpr WindowEdges kTopRight{false, true, true, false};
constexpr WindowEdges kBottomLeft{true, false, false, true};

TEST(GripPlace, LiesAlongASide)
{
    EXPECT_EQ(GripPlace(kLeft, 800, 600), (Box{0, 0, 6, 600}));
    EXPECT_EQ(GripPlace(kTop, 800, 600), (Box{0, 0, 800, 6}));
    EXPECT_EQ(GripPlace(kRight, 800, 600), (Box{794, 0, 6, 600}));
    EXPECT_EQ(GripPlace(kBottom, 800, 600), (Box{0, 594, 800, 6}));
}

TEST(GripPlace, IsASquareAtACorner)
{
    EXPECT_EQ(GripPlace(kTopRight, 800, 600), (Box{790, 0, 10, 10}));
    EXPECT_EQ(GripPlace(kBottomLeft, 800, 600), (Box{0, 590, 10, 10}));
}

TEST(DraggedByEdges, MovesTheEdgesThatAreHeldAndNoOther)
{
    EXPECT_EQ(DraggedByEdges(kStart, kLeft, 30, 99), (Box{130, 50, 770, 600}));
    EXPECT_EQ(DraggedByEdges(kStart, kTop, 99, -20), (Box{100, 30, 800, 620}));
    EXPECT_EQ(DraggedByEdges(kStart, kRight, -30, 99), (Box{100, 50, 770, 600}));
    EXPECT_EQ(DraggedByEdges(kStart, kBottom, 99, 40), (Box{100, 50, 800, 640}));
    EXPECT_EQ(DraggedByEdges(kStart, kTopRight, 10, 20), (Box{100, 70, 810, 580}));
    EXPECT_EQ(DraggedByEdges(kStart, kBottomLeft, 10, 20), (Box{110, 50, 790, 620}));
}

TEST(DraggedByEdges, StopsAtTheLeastSizeWhereverTheOtherEdgeStands)
{
    EXPECT_EQ(DraggedByEdges(kStart, kLeft, 700, 0), (Box{367, 50, 533, 600}));
    EXPECT_EQ(DraggedByEdges(kStart, kRight, -700, 0), (Box{100, 50, 533, 600}));
    EXPECT_EQ(DraggedByEdges(kStart, kTop, 0, 700), (Box{100, 450, 800, 200}));
    EXPECT_EQ(DraggedByEdges(kStart, kBottom, 0, -700), (Box{100, 50, 800, 200}));
}

} // namespace
} // namespace sprout
