// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/SlideLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace sprout {
namespace {

constexpr BoxSize kBubble{200, 60};

bool Overlap(const Box& a, const Box& b)
{
    return a.left < b.Right() && b.left < a.Right() && a.top < b.Bottom() && b.top < a.Bottom();
}

bool IsInside(const Box& box)
{
    return box.left >= 0 && box.top >= 0 && box.Right() <= kSlideSize.width && box.Bottom() <= kSlideSize.height;
}

TEST(PlaceHand, PutsTheFingerOnThePoint)
{
    const HandPlace hand = PlaceHand(300, 200);
    EXPECT_EQ(hand.box, (Box{300 - kFingerX, 200 - kFingerY, kHandSide, kHandSide}));
    EXPECT_FALSE(hand.isMirrored);
    EXPECT_FALSE(hand.isUpsideDown);
}

TEST(PlaceHand, TurnsTheHandAtTheEdges)
{
    EXPECT_TRUE(PlaceHand(775, 200).isMirrored);
    EXPECT_TRUE(PlaceHand(300, 530).isUpsideDown);
    for (const SlidePoint point : {SlidePoint{0, 0}, {779, 0}, {0, 539}, {779, 539}})
        EXPECT_TRUE(IsInside(PlaceHand(point.x, point.y).box)) << point.x << " " << point.y;
}

TEST(PlaceBubble, StaysNearItsTargetWithoutTouchingIt)
{
    const Box target{380, 260, 40, 40};
    const Box bubble = PlaceBubble(kBubble, target, {}, {});
    EXPECT_EQ(bubble.width, kBubble.width);
    EXPECT_EQ(bubble.height, kBubble.height);
    EXPECT_FALSE(Overlap(bubble, target));
    EXPECT_TRUE(Overlap({bubble.left - 30, bubble.top - 30, bubble.width + 60, bubble.height + 60}, target));
}

TEST(PlaceBubble, StaysInThePictureWhereverTheTargetIs)
{
    for (const Box& target : {Box{0, 0, 20, 20}, Box{760, 0, 20, 20}, Box{0, 520, 20, 20}, Box{760, 520, 20, 20}}) {
        const Box bubble = PlaceBubble(kBubble, target, {}, {});
        EXPECT_TRUE(IsInside(bubble));
        EXPECT_FALSE(Overlap(bubble, target));
    }
}

TEST(PlaceBubble, KeepsOffWhatMustStayFree)
{
    const Box target{380, 260, 40, 40};
    const std::vector<Box> free{{300, 310, 200, 100}, {300, 140, 200, 100}};
    const Box bubble = PlaceBubble(kBubble, target, free, {});
    EXPECT_FALSE(Overlap(bubble, free[0]));
    EXPECT_FALSE(Overlap(bubble, free[1]));
}

TEST(PlaceBubble, GoesRoundOtherThingsOnlyForAShortWay)
{
    const Box target{380, 260, 40, 40};
    const Box usual = PlaceBubble(kBubble, target, {}, {});
    const std::vector<Box> button{usual};
    EXPECT_FALSE(Overlap(PlaceBubble(kBubble, target, {}, button), usual));
    const std::vector<Box> everything{{0, 0, 780, 540}};
    EXPECT_EQ(PlaceBubble(kBubble, target, {}, everything), usual);
}

TEST(PlaceBubble, CoversAPlaceWithoutASize)
{
    const Box bubble = PlaceBubble(kBubble, {390, 270, 0, 0}, {}, {});
    EXPECT_TRUE(Overlap(bubble, {389, 269, 2, 2}));
}

TEST(ClosestPoint, IsTheEndOfABubblesTail)
{
    const Box box{10, 20, 30, 40};
    EXPECT_EQ(ClosestPoint(box, {0, 30}), (SlidePoint{10, 30}));
    EXPECT_EQ(ClosestPoint(box, {100, 100}), (SlidePoint{39, 59}));
    EXPECT_EQ(ClosestPoint(box, {25, 25}), (SlidePoint{25, 25}));
}

} // namespace
} // namespace sprout
