// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/rules/DemoPlaces.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace sprout {

namespace {

constexpr int kBesidePicture = 4; ///< both sides together
constexpr int kBelowPicture = 35; ///< holds the link
constexpr int kBesideLink = 24;
constexpr int kTicksOfPulse = 32;
constexpr double kFullTurn = 6.283185307179586;

int Scaled(std::int64_t value, int to, int from)
{
    return static_cast<int>(value * to / from);
}

BoxSize Fitted(const BoxSize& picture, const BoxSize& room)
{
    if (picture.width <= room.width && picture.height <= room.height)
        return picture;
    const std::int64_t byWidth = static_cast<std::int64_t>(picture.height) * room.width;
    const std::int64_t byHeight = static_cast<std::int64_t>(picture.width) * room.height;
    const BoxSize fitted = byWidth <= byHeight
                               ? BoxSize{room.width, Scaled(picture.height, room.width, picture.width)}
                               : BoxSize{Scaled(picture.width, room.height, picture.height), room.height};
    return {std::max(fitted.width, 1), std::max(fitted.height, 1)};
}

/// The pixel of a picture of `from` pixels at `value` of `to`; also for a pointer that was dragged outside.
int PixelAt(int value, int from, int to)
{
    return static_cast<int>(std::floor(static_cast<double>(value) * from / to));
}

} // namespace

DemoPlaces PlaceDemo(const BoxSize& picture, const BoxSize& room, const BoxSize& link)
{
    // On a small screen the margin below gives way before the picture is scaled and loses its sharpness.
    const int leastBelow = std::min(link.height, kBelowPicture);
    const BoxSize roomOfPicture{std::max(room.width - kBesidePicture, 1), std::max(room.height - leastBelow, 1)};
    const BoxSize shown = Fitted(picture, roomOfPicture);
    const int below = std::clamp(room.height - shown.height, leastBelow, kBelowPicture);
    DemoPlaces places;
    places.body = {std::max(shown.width + kBesidePicture, link.width + kBesideLink), shown.height + below};
    places.picture = {(places.body.width - shown.width) / 2, 0, shown.width, shown.height};
    places.link = {(places.body.width - link.width) / 2, shown.height + (below - link.height) / 2, link.width,
                   link.height};
    return places;
}

DemoPoint PointInPicture(DemoPoint shown, const BoxSize& picture, const BoxSize& place)
{
    return {PixelAt(shown.x, picture.width, place.width), PixelAt(shown.y, picture.height, place.height)};
}

Box ShownRectangle(const DemoRectangle& rectangle, const BoxSize& picture, const BoxSize& place)
{
    if (!rectangle.Reaches(picture))
        return {};
    const std::int64_t left = std::max<std::int64_t>(rectangle.left, 0);
    const std::int64_t top = std::max<std::int64_t>(rectangle.top, 0);
    const std::int64_t right = std::min<std::int64_t>(rectangle.right, picture.width - 1) + 1;
    const std::int64_t bottom = std::min<std::int64_t>(rectangle.bottom, picture.height - 1) + 1;
    Box shown;
    shown.left = Scaled(left, place.width, picture.width);
    shown.top = Scaled(top, place.height, picture.height);
    shown.width = std::max(Scaled(right, place.width, picture.width) - shown.left, 1);
    shown.height = std::max(Scaled(bottom, place.height, picture.height) - shown.top, 1);
    return shown;
}

double PulseStrength(int tick)
{
    return (1 - std::cos(kFullTurn * (tick % kTicksOfPulse) / kTicksOfPulse)) / 2;
}

} // namespace sprout
