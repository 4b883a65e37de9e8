// SPDX-License-Identifier: GPL-3.0-or-later
#include "tutorial/SlideLayout.h"

#include <algorithm>
#include <cstdint>

namespace sprout {

namespace {

constexpr int kBubbleStep = 4;    ///< places are tried at these distances
constexpr int kFromEdge = 8;      ///< of the picture
constexpr int kAroundTarget = 22; ///< room for the bubble's tail
constexpr int kAroundOthers = 4;

/// What a covered pixel costs: more than any distance, and as much as a short detour.
constexpr std::int64_t kCoveredCost = 1'000'000;
constexpr std::int64_t kCoveredOtherCost = 100;

Box Around(const Box& box, int margin)
{
    return {box.left - margin, box.top - margin, box.width + 2 * margin, box.height + 2 * margin};
}

std::int64_t CommonArea(const Box& a, const Box& b)
{
    const int width = std::min(a.Right(), b.Right()) - std::max(a.left, b.left);
    const int height = std::min(a.Bottom(), b.Bottom()) - std::max(a.top, b.top);
    return width > 0 && height > 0 ? std::int64_t{width} * height : 0;
}

std::int64_t Square(std::int64_t value)
{
    return value * value;
}

/// How far two boxes are apart, squared; places in line with the middle are a little better.
std::int64_t Distance(const Box& bubble, const Box& target)
{
    const std::int64_t x = std::max({target.left - bubble.Right(), bubble.left - target.Right(), 0});
    const std::int64_t y = std::max({target.top - bubble.Bottom(), bubble.top - target.Bottom(), 0});
    const std::int64_t beside = Square((bubble.left + bubble.Right()) / 2 - (target.left + target.Right()) / 2) +
                                Square((bubble.top + bubble.Bottom()) / 2 - (target.top + target.Bottom()) / 2);
    return 16 * (Square(x) + Square(y)) + beside;
}

} // namespace

HandPlace PlaceHand(int x, int y)
{
    HandPlace hand;
    hand.isMirrored = x - kFingerX + kHandSide > kSlideSize.width;
    hand.isUpsideDown = y - kFingerY + kHandSide > kSlideSize.height;
    const int left = hand.isMirrored ? x - (kHandSide - kFingerX) : x - kFingerX;
    const int top = hand.isUpsideDown ? y - (kHandSide - kFingerY) : y - kFingerY;
    hand.box = {std::clamp(left, 0, kSlideSize.width - kHandSide), std::clamp(top, 0, kSlideSize.height - kHandSide),
                kHandSide, kHandSide};
    return hand;
}

Box PlaceBubble(const BoxSize& bubble, const Box& pointsAt, std::span<const Box> free, std::span<const Box> others)
{
    const bool hasTarget = pointsAt.width > 0;
    const auto costOf = [&](const Box& place) {
        std::int64_t cost = Distance(place, pointsAt);
        if (hasTarget)
            cost += kCoveredCost * CommonArea(place, Around(pointsAt, kAroundTarget));
        for (const Box& box : free)
            cost += kCoveredCost * CommonArea(place, Around(box, kAroundOthers));
        for (const Box& box : others)
            cost += kCoveredOtherCost * CommonArea(place, box);
        return cost;
    };
    Box best{kFromEdge, kFromEdge, bubble.width, bubble.height};
    std::int64_t leastCost = costOf(best);
    for (Box place = best; place.Bottom() + kFromEdge <= kSlideSize.height; place.top += kBubbleStep)
        for (place.left = kFromEdge; place.Right() + kFromEdge <= kSlideSize.width; place.left += kBubbleStep)
            if (const std::int64_t cost = costOf(place); cost < leastCost) {
                best = place;
                leastCost = cost;
            }
    return best;
}

SlidePoint ClosestPoint(const Box& box, SlidePoint point)
{
    return {std::clamp(point.x, box.left, box.Right() - 1), std::clamp(point.y, box.top, box.Bottom() - 1)};
}

} // namespace sprout
