// SPDX-License-Identifier: GPL-3.0-or-later
#include "main_window/rules/EdgeDrag.h"

#include <algorithm>

namespace sprout {

namespace {

constexpr std::int32_t kGrip = 6;
constexpr std::int32_t kCornerGrip = 10;

/// One dimension of a window.
struct Span {
    std::int32_t at = 0;
    std::int32_t extent = 0;
};

/// nearEdge, farEdge: which end is held.
Span GripSpan(bool nearEdge, bool farEdge, std::int32_t grip, std::int32_t extent)
{
    if (nearEdge)
        return {0, grip};
    return farEdge ? Span{extent - grip, grip} : Span{0, extent};
}

Span Dragged(const Span& start, bool nearEdge, bool farEdge, std::int32_t by, std::int32_t least)
{
    if (farEdge)
        return {start.at, std::max(start.extent + by, least)};
    if (!nearEdge)
        return start;
    const std::int32_t extent = std::max(start.extent - by, least);
    return {start.at + start.extent - extent, extent};
}

} // namespace

Box GripPlace(const WindowEdges& edges, std::int32_t width, std::int32_t height)
{
    const bool corner = (edges.left || edges.right) && (edges.top || edges.bottom);
    const std::int32_t grip = corner ? kCornerGrip : kGrip;
    const Span across = GripSpan(edges.left, edges.right, grip, width);
    const Span down = GripSpan(edges.top, edges.bottom, grip, height);
    return {across.at, down.at, across.extent, down.extent};
}

Box DraggedByEdges(const Box& start, const WindowEdges& edges, std::int32_t dx, std::int32_t dy)
{
    const Span across = Dragged({start.left, start.width}, edges.left, edges.right, dx, kLeastWindowWidth);
    const Span down = Dragged({start.top, start.height}, edges.top, edges.bottom, dy, kLeastWindowHeight);
    return {across.at, down.at, across.extent, down.extent};
}

} // namespace sprout
