// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/rules/DemoRectangle.h"
#include "ui/rules/Box.h"

namespace sprout {

/// Where the parts of the demo window stand. Positions count from the lower edge of the title band.
struct DemoPlaces {
    BoxSize body; ///< the form without its band
    Box picture;
    Box link;
};

/// picture: size of the slide's picture in pixels. room: what the screen offers to the body. A picture that does not
/// fit is shown smaller, its proportions kept. link: size of the link below it.
[[nodiscard]] DemoPlaces PlaceDemo(const BoxSize& picture, const BoxSize& room, const BoxSize& link);

/// The pixel of the picture at a point of the place where it is shown, counted from the place's corner.
[[nodiscard]] DemoPoint PointInPicture(DemoPoint shown, const BoxSize& picture, const BoxSize& place);

/// Where a rectangle of the picture is shown, counted from the place's corner; the part inside the picture.
[[nodiscard]] Box ShownRectangle(const DemoRectangle& rectangle, const BoxSize& picture, const BoxSize& place);

/// How strong the active rectangle shines at a tick of its pulse, from 0 to 1.
[[nodiscard]] double PulseStrength(int tick);

/// Milliseconds until a slide's rectangle begins to pulse, and between two ticks of the pulse.
inline constexpr int kBeforePulse = 5000;
inline constexpr int kPulseTick = 50;

} // namespace sprout
